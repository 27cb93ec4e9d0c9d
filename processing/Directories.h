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

/// Counts that FindFiles leaves for its two callers.
struct FileCounts {
    std::int16_t BatchFileCount = 0;
    std::int16_t ReportFileCount = 0;
};

extern FileCounts fileCounts;

/// The path with the separator at its end; a final separator or "\" that is there already stays the only one.
std::string withSeparator(std::string_view directory, char separator = pathSeparator);

/// Whether the text of a field for an output directory names one; blanks round it do not count. Blanks alone
/// name none, also after the field was left and got its final separator: they must not mean the root.
bool isOutputDirectory(std::string_view typed);

/// Creates all missing levels of the path, one final separator aside. True when the path is a directory at
/// the end, false when it or a level above it cannot be made.
bool MakeDirectoryTree(std::string_view path, char separator = pathSeparator);

/// What a dialog does once its working directory is there.
struct WorkDirCaller {
    std::function<void()> clearWorkDirBox;  ///< paints the box of the working directory white
    std::function<void()> restart;          ///< begins the action anew, checks included
};

/// Asks whether the missing directory shall be created and goes on with the caller's action when it was. A
/// directory that cannot be made ends the matter without a word, as No does.
void AskCreateWorkDir(Host& host, const WorkDirCaller& caller, const std::string& directory);

/// The names of the plain files that match a pattern such as "{directory}*.frq", hidden ones included, in the
/// order of the directory; one empty text where there is none. Their number goes to BatchFileCount for the
/// caller "BatchMode" and to ReportFileCount for "CreateReport"; raises 6 above 32767 of them.
std::vector<std::string> FindFiles(std::string_view caller, const std::string& pattern);

}  // namespace zg
