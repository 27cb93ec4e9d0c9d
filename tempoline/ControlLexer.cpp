#include "tempoline/ControlLexer.h"

#include <algorithm>
#include <cctype>

#include "base/Text.h"
#include "tempoline/Fields.h"

namespace zg::tempoline {

namespace {

constexpr std::string_view fileKind = "TEMPOLINE.INP";
constexpr std::string_view endMark = "!END!";

bool isKeyCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// The key at the start of the text after a "!", and where its value begins; an empty key if it is no
/// assignment.
struct KeyPart {
    std::string_view key;
    std::size_t valueBegin = 0;
};

KeyPart keyAt(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at])) ++at;
    const std::size_t begin = at;
    while (at < text.size() && isKeyCharacter(text[at])) ++at;
    const std::string_view key = text.substr(begin, at - begin);
    while (at < text.size() && isBlank(text[at])) ++at;
    if (key.empty() || at == text.size() || text[at] != '=') return {};
    return {key, at + 1};
}

bool mayFollowValue(std::string_view rest) {
    rest = stripped(rest);
    if (rest.empty() || ucase(rest.substr(0, endMark.size())) == endMark) return true;
    return rest[0] == '!' && !keyAt(rest.substr(1)).key.empty();
}

/// Position of the "!" that ends the value; npos if there is none.
std::size_t endOfValue(std::string_view text) {
    for (std::size_t at = text.find('!'); at != std::string_view::npos; at = text.find('!', at + 1)) {
        if (mayFollowValue(text.substr(at + 1))) return at;
    }
    return text.find('!');
}

class Lexer {
 public:
    Lexer(std::string_view text, const std::string& file) : rest_(text) { result_.file = file; }

    ControlText read() {
        std::string_view line;
        if (!nextLine(line) || ucase(trimmed(line)).compare(0, fileKind.size(), fileKind) != 0)
            throw controlFailure(result_.file, 1, "", "the first line does not begin with TEMPOLINE.INP");
        if (nextLine(line)) result_.title = stripped(line);
        while (nextLine(line)) readLine(line);
        return std::move(result_);
    }

    std::vector<Assignment> readLenient() {
        std::string_view line;
        for (int head = 0; head < 2; ++head) nextLine(line);
        while (nextLine(line)) {
            try {
                readLine(line);
            } catch (const Failure&) {
                continue;  // the other lines are still read
            }
        }
        return std::move(result_.assignments);
    }

 private:
    bool nextLine(std::string_view& line) {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find('\n');
        line = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        ++result_.lineCount;
        return true;
    }

    void readLine(std::string_view line) {
        for (std::size_t at = line.find('!'); at != std::string_view::npos; at = line.find('!')) {
            line.remove_prefix(at + 1);
            const KeyPart part = keyAt(line);
            if (part.key.empty()) continue;
            const std::string_view behind = line.substr(part.valueBegin);
            const std::size_t end = endOfValue(behind);
            const std::string key = ucase(part.key);
            if (end == std::string_view::npos)
                throw controlFailure(result_.file, result_.lineCount, key,
                                     "the value has no \"!\" at its end");
            const std::string_view value = stripped(behind.substr(0, end));
            if (std::any_of(value.begin(), value.end(), [](char c) { return std::iscntrl(c & 0xFF) != 0; }))
                throw controlFailure(result_.file, result_.lineCount, key,
                                     "the value holds a control character");
            result_.assignments.push_back({key, std::string(value), result_.lineCount});
            line = behind.substr(end + 1);
        }
    }

    std::string_view rest_;
    ControlText result_;
};

}  // namespace

Failure controlFailure(const std::string& file, std::size_t line, std::string_view key,
                       const std::string& text) {
    std::string message = file + ": ";
    if (line > 0) message = file + ":" + std::to_string(line) + ": ";
    if (!key.empty()) message.append(key).append(": ");
    return {ExitStatus::BadControl, message + text};
}

ControlText readAssignments(std::string_view text, const std::string& file) {
    return Lexer(text, file).read();
}

std::vector<Assignment> readableAssignments(std::string_view text) { return Lexer(text, "").readLenient(); }

}  // namespace zg::tempoline
