#pragma once

// The two batch files that the program writes, line by line, and their lines read back. Where the platform
// has no batch shell the program carries the lines out itself, and only those that it would have written.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Paths.h"

namespace zg {

/// Raises 52, with the name, where a batch file cannot hold the name as one: a line end would begin a line of
/// its own. The shell of Windows, told by its separator, also acts on % & ^ ! " | < > and on control
/// characters, on some of them within quotes too.
void needBatchName(std::string_view name, char separator = pathSeparator);

/// The names in the batch file of a run.
struct RunBatch {
    std::string outputDirectory;   ///< with its final separator
    std::string base;              ///< of the run's files
    std::string programDirectory;  ///< without a final separator
    bool operator==(const RunBatch&) const = default;
};

/// The five lines of run_tempoline.bat, without their ends; raises as needBatchName does.
std::vector<std::string> batchLines(const std::string& outputDirectory, const std::string& base,
                                    const std::string& programDirectory, char separator = pathSeparator);

/// The names of such lines; nothing where they are not, byte for byte, what batchLines gives for names.
std::optional<RunBatch> readRunBatch(const std::vector<std::string>& lines, char separator = pathSeparator);

/// The line of open_file.bat, without its end; raises as needBatchName does.
std::string viewerLine(const std::string& path, char separator = pathSeparator);

/// The path of such a line; "" for any other line.
std::string viewedFile(std::string_view line, char separator = pathSeparator);

}  // namespace zg
