#pragma once

#include <string>

namespace zg {

/// Reads the working directory from the suite's configuration file, lines of the form key = value: the first
/// line whose trimmed key is exactly "WorkDir" gives it, up to a second "=" and trimmed. A missing file gives
/// "", a file without the key leaves workDir as it is. Raises the fitting error where the file cannot be
/// read.
void readSuiteWorkDir(const std::string& path, std::string& workDir);

}  // namespace zg
