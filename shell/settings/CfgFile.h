#pragma once

// Zephyrgraph.cfg: 68 lines, one value each, whose only key is their position. What fails, on reading as on
// writing, ends with the factory file at CfgFilePath and without a message; the next read finds that file.
// Where no file can be written there, memory holds what it would hold, until the program ends.

#include <string>

namespace zg {

/// Fills the settings and the plot's style. Values before a faulty line keep what was read.
void ReadCfgFile(const std::string& path);

/// Replaces the file by the values as they stand.
void WriteCfgFile(const std::string& path);

/// Writes the factory lines to CfgFilePath; where that fails they stay in memory.
void WriteDefaultCfgFile();

}  // namespace zg
