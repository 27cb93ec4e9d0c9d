#include "processing/RunReasons.h"

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

/// What splits a name into several words of a command line, 0 if nothing does. For the copy of the listing
/// the shell of Windows, identified by its separator, takes more signs than the blank: "+" joins two files.
char splitterIn(const std::string& name, char separator) {
    if (name.find(' ') != std::string::npos) return ' ';
    const std::size_t at = separator == '\\' ? name.find_first_of(";,=+") : std::string::npos;
    return at == std::string::npos ? '\0' : name[at];
}

std::string splitName(char splitter, const char* remedy) {
    if (splitter == ' ')
        return std::string("a blank in the name: the processor cannot find its control file; ") + remedy;
    return std::string("a ") + splitter +
           " in the name: the command shell cannot copy the processor's listing; " + remedy;
}

constexpr const char* renameInput = "rename the input";

/// The name begins with that of the station or of the input, and may end with the height.
const char* remedyOf(const ControlFile& control, char splitter) {
    if (control.inputFiles.empty()) return renameInput;
    const auto has = [splitter](const std::string& text) { return text.find(splitter) != std::string::npos; };
    const std::string input = fileBaseOf(control.inputFiles.front());
    if (has(input) && control.base.find(input) != std::string::npos) return renameInput;
    for (const ControlOutput& output : control.outputs)
        if (splitter == ' ' && has(output.height) && control.base.ends_with("_" + output.height + "m"))
            return "take the blank out of the height";
    return "rename the station in Station_Data.csv";
}

}  // namespace

std::string foreseenTrouble(const std::string& base, const std::string& programDirectory, char separator) {
    if (const char splitter = splitterIn(base, separator))
        return splitName(splitter, "rename the input or the station");
    if (!fileExists(programDirectory + pathSeparator + "tempoline.exe"))
        return "tempoline.exe is missing in " + programDirectory;
    return {};
}

std::string foreseenTrouble(const RunPlan& plan) {
    if (const char splitter = splitterIn(plan.control.base, pathSeparator))
        return splitName(splitter, remedyOf(plan.control, splitter));
    return foreseenTrouble(plan.control.base, plan.programDirectory);
}

std::string lastLineOfListing(const std::string& path) {
    std::string last;
    try {
        for (LineReader lines(existingFile(path)); !lines.atEnd();)
            if (std::string line = trim(lines.readLine()); !line.empty()) last = std::move(line);
    } catch (const RunTimeError&) {
        return last;  // as far as it could be read
    }
    return last;
}

std::string warningsOfListing(const std::string& path) {
    constexpr std::size_t mostShown = 3;
    constexpr std::string_view mark = "WARNING: ";
    std::string text;
    std::size_t count = 0;
    try {
        for (LineReader lines(existingFile(path)); !lines.atEnd();) {
            const std::string line = trim(lines.readLine());
            if (!line.starts_with(mark) || ++count > mostShown) continue;
            text += (text.empty() ? "" : "\n") + line;
        }
    } catch (const RunTimeError&) {
        return text;  // as far as it could be read
    }
    return count > mostShown ? text + "\n" + std::to_string(count - mostShown) + " more in the listing"
                             : text;
}

}  // namespace zg
