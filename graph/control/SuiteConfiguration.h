#pragma once

#include <string>

namespace zg {

/// Reads the working directory from the suite's configuration file, which has lines of the form key = value:
/// the first line whose trimmed key is exactly "WorkDir" gives it, up to a second "=" and trimmed. A missing
/// file gives ""; a file that has no such key or cannot be read leaves workDir unchanged.
void readSuiteWorkDir(const std::string& path, std::string& workDir);

}  // namespace zg
