#include "platform/BatchScript.h"

#include <string_view>

#include "base/Text.h"

namespace zg {

namespace {

std::string shellQuoted(std::string_view word) {
    std::string out = "'";
    for (const char character : word) {
        if (character == '\'')
            out += "'\\''";
        else
            out += character;
    }
    return out + "'";
}

/// The words of a line; a part in double quotes is one word without them.
std::vector<std::string> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    std::string word;
    bool inQuotes = false;
    bool begun = false;
    for (const char character : line) {
        if (character == '"') {
            inQuotes = !inQuotes;
            begun = true;
        } else if (character == ' ' && !inQuotes) {
            if (begun) words.push_back(word);
            word.clear();
            begun = false;
        } else {
            word += character;
            begun = true;
        }
    }
    if (begun) words.push_back(word);
    return words;
}

/// A program made for Windows runs by way of wine where that is installed.
std::string programLine(const std::vector<std::string>& words) {
    const std::string program = shellQuoted(words[0]);
    std::string rest;
    for (std::size_t i = 1; i < words.size(); ++i) rest += " " + shellQuoted(words[i]);
    return "if [ \"$(head -c 2 " + program +
           " 2>/dev/null)\" = MZ ] && command -v wine >/dev/null; then wine " + program + rest + "; else " +
           program + rest + "; fi\n";
}

std::string scriptLine(const std::string& line) {
    const std::vector<std::string> words = wordsOf(line);
    if (words.empty()) return {};
    const std::string command = lcase(words[0]);
    if (command == "cd" && words.size() == 2) return "cd " + shellQuoted(words[1]) + "\n";
    if (command == "copy")
        return words.size() == 3 ? "cp -- " + shellQuoted(words[1]) + " " + shellQuoted(words[2]) + "\n"
                                 : std::string("echo 'copy: wrong number of words' >&2\n");
    if (line.starts_with("\"")) return programLine(words);
    return {};
}

}  // namespace

std::string asShellScript(const std::vector<std::string>& batchLines) {
    std::string script;
    for (const std::string& line : batchLines) script += scriptLine(line);
    return script;
}

std::vector<std::string> scriptCommand(const std::string& script, const std::string& terminal) {
    if (terminal.empty()) return {"setsid", "sh", "-c", script};
    const std::string stay = "printf 'Press Enter to close this window. '; read -r key\n";
    return {"setsid", terminal, "-e", "sh", "-c", script + stay};
}

}  // namespace zg
