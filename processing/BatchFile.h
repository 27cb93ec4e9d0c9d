#pragma once

// The two batch files that the program writes, line by line, and the reverse. On platforms without a batch
// shell the program executes the lines itself, and only those that it would have written.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Paths.h"

namespace zg {

/// Raises 52, with the name, if a batch file cannot contain it as one word: a line end would begin another
/// line. The shell of Windows, identified by its separator, also interprets % & ^ ! "
/// < > and control characters, some of them within quotes too.
void needBatchName(std::string_view name, char separator = pathSeparator);

/// The names in the batch file of a run.
struct RunBatch {
    std::string outputDirectory;   ///< with its final separator
    std::string base;              ///< of the run's files
    std::string programDirectory;  ///< without a final separator
    bool operator==(const RunBatch&) const = default;
};

/// The five lines of run_tempoline.bat, without line ends; raises the error of needBatchName.
std::vector<std::string> batchLines(const std::string& outputDirectory, const std::string& base,
                                    const std::string& programDirectory, char separator = pathSeparator);

/// A directory as those lines can name it: by another of its names if the shell has no characters for this
/// one.
std::string batchDirectory(const std::string& directory);

/// The bytes of a line for the shell; raises 52, with the line, if the shell has no characters for it.
std::string batchBytes(const std::string& line);

/// The names in such lines; nothing if they are not, byte for byte, what batchLines gives for these names.
std::optional<RunBatch> readRunBatch(const std::vector<std::string>& lines, char separator = pathSeparator);

/// The line of open_file.bat, without its line end; raises the error of needBatchName.
std::string viewerLine(const std::string& path, char separator = pathSeparator);

/// The path in such a line; "" for any other line.
std::string viewedFile(std::string_view line, char separator = pathSeparator);

}  // namespace zg
