#pragma once

// Zephyrgraph.cfg: 68 lines, one value each, identified only by position. Any failure, on reading or writing,
// ends with the factory file at CfgFilePath and without a message; the next read finds that file. If no file
// can be written there, its text is kept in memory until the program ends.

#include <string>

namespace zg {

/// Fills in the settings and the plot's style. After an invalid line the values before it remain as read.
void ReadCfgFile(const std::string& path);

/// Replaces the file by the current values.
void WriteCfgFile(const std::string& path);

/// Writes the factory lines to CfgFilePath; if that fails they stay in memory.
void WriteDefaultCfgFile();

}  // namespace zg
