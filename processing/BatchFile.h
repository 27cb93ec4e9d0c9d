#pragma once

// The two batch files that the program writes, line by line. On platforms without a batch shell the program
// does itself what they say, provided that nobody has changed them.

#include <string>
#include <string_view>
#include <vector>

#include "base/Paths.h"

namespace zg {

constexpr int badNameError = 52;  ///< "Bad file name or number"

/// Raises 52, with the name, if a batch file cannot contain it as one word: a line end would begin another
/// line. The shell of Windows, identified by its separator, also interprets % & ^ ! "
/// < > and control characters, some of them within quotes too.
void needBatchName(std::string_view name, char separator = pathSeparator);

/// The names in the batch file of a run.
struct RunBatch {
    std::string outputDirectory;   ///< with its final separator
    std::string base;              ///< of the run's files
    std::string programDirectory;  ///< without a final separator

    std::string path() const { return outputDirectory + "run_tempoline.bat"; }
};

/// The five lines of run_tempoline.bat, without line ends; raises the error of needBatchName.
std::vector<std::string> batchLines(const RunBatch& run, char separator = pathSeparator);

/// A directory as those lines can name it: by another of its names if the shell has no characters for this
/// one.
std::string batchDirectory(const std::string& directory);

/// The bytes of a line for the shell; raises 52, with the line, if the shell has no characters for it.
std::string batchBytes(const std::string& line);

/// The line of open_file.bat, without its line end; raises the error of needBatchName.
std::string viewerLine(const std::string& path, char separator = pathSeparator);

/// Whether a file has exactly these lines: another program may have replaced what was written. Raises the
/// error of a file that cannot be read.
bool hasOnlyLines(const std::string& path, const std::vector<std::string>& lines);

}  // namespace zg
