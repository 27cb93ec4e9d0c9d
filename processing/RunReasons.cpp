#include "processing/RunReasons.h"

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

std::string foreseenTrouble(const std::string& base, const std::string& programDirectory) {
    if (base.find(' ') != std::string::npos)
        return "a blank in the name: the processor cannot find its control file; rename the input";
    if (!fileExists(programDirectory + pathSeparator + "tempoline.exe"))
        return "tempoline.exe is missing in " + programDirectory;
    return {};
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
