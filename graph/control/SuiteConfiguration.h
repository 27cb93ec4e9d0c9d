#pragma once

#include <string>

namespace zg {

/// Reads the working directory from the suite's configuration file, lines of the form key = value: the first
/// line whose trimmed key is exactly "WorkDir" gives it, up to a second "=" and trimmed. A missing file gives
/// "", a file without the key, or one that cannot be read, leaves workDir as it is.
void readSuiteWorkDir(const std::string& path, std::string& workDir);

}  // namespace zg
