#include "processing/Directories.h"

#include <cerrno>
#include <cstring>

#include "base/Files.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

FileCounts fileCounts;

namespace {

/// No longer path can be opened, and walking up its levels would only cost time.
constexpr std::size_t longestPath = 4096;

}  // namespace

bool isOutputDirectory(std::string_view typed) {
    const std::string directory = trim(typed);
    const bool onlySeparators = directory.find_first_not_of("/\\") == std::string::npos;
    return !(typed.starts_with(' ') && onlySeparators) && IsDirectory(directory);
}

bool MakeDirectoryTree(std::string_view path, char separator, std::string* reason) {
    const auto fail = [reason](const std::string& why) {
        if (reason != nullptr) *reason = why;
        return false;
    };
    if (path.size() > longestPath) return fail("the name is too long");
    if (IsDirectory(std::string(path))) return true;
    if (endsInSeparator(path, separator)) path.remove_suffix(1);
    if (path.empty()) return fail("the name is empty");

    // From the path upwards to the first existing level; nothing left means the root or the current
    // directory.
    std::vector<std::size_t> missing;
    for (std::string level(path); !level.empty() && !IsDirectory(level); level = DirOf(level, separator))
        missing.push_back(level.size());
    for (; !missing.empty(); missing.pop_back()) {
        const std::string level(path.substr(0, missing.back()));
        if (!makeDirectory(level) && !IsDirectory(level)) return fail(level + ": " + std::strerror(errno));
    }
    return true;
}

void AskCreateWorkDir(Host& host, const WorkDirCaller& caller, const std::string& directory) {
    const BoxAnswer answer =
        host.showBox({.text = "The Working Directory " + directory +
                              " does not exist.  Would you like to create this directory?",
                      .title = "Create Directory?",
                      .icon = BoxIcon::Question,
                      .buttons = BoxButtons::YesNo});
    if (answer != BoxAnswer::Yes) return;
    std::string reason;
    if (!MakeDirectoryTree(directory, pathSeparator, &reason)) {
        if (caller.tellFailure) caller.tellFailure(reason);
        return;
    }
    caller.clearWorkDirBox();
    caller.restart();
}

std::vector<std::string> FindFiles(std::string_view caller, const std::string& pattern) {
    std::vector<std::string> names = filesMatching(pattern);
    const std::int16_t count = toInt16(static_cast<double>(names.size()));
    if (caller == "BatchMode") fileCounts.BatchFileCount = count;
    if (caller == "CreateReport") fileCounts.ReportFileCount = count;
    if (names.empty()) names.emplace_back();
    return names;
}

}  // namespace zg
