#pragma once

// Directories that a run needs and the files that it finds in them.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Host.h"
#include "base/Paths.h"

namespace zg {

/// Results of FindFiles for its two callers.
struct FileCounts {
    std::int16_t BatchFileCount = 0;
    std::int16_t ReportFileCount = 0;
};

extern FileCounts fileCounts;

/// Whether the text of an output directory field names a directory, surrounding blanks ignored. Blanks alone
/// do not, even after the field was left and got its final separator: they must not mean the root.
bool isOutputDirectory(std::string_view typed);

/// Creates all missing levels of the path, disregarding one final separator. True if the path is then a
/// directory, false if it or a level above it cannot be created; the reason then says which and why.
bool MakeDirectoryTree(std::string_view path, char separator = pathSeparator, std::string* reason = nullptr);

/// What a dialog does once its working directory exists.
struct WorkDirCaller {
    std::function<void()> clearWorkDirBox;  ///< paints the box of the working directory white
    std::function<void()> restart;          ///< starts the action again, including its checks
    /// Tells in the dialog why the directory cannot be created; may be empty.
    std::function<void(const std::string& reason)> tellFailure = {};
};

/// Asks whether to create the missing directory and, once it is created, continues the caller's action. If it
/// cannot be created no box is shown: the caller tells the reason.
void AskCreateWorkDir(Host& host, const WorkDirCaller& caller, const std::string& directory);

/// The names of the regular files that match a pattern such as "{directory}*.frq", hidden ones included, in
/// directory order; one empty text if there are none. Their number goes to BatchFileCount for the caller
/// "BatchMode" and to ReportFileCount for "CreateReport"; raises 6 above 32767 of them.
std::vector<std::string> FindFiles(std::string_view caller, const std::string& pattern);

}  // namespace zg
