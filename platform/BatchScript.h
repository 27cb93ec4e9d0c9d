#pragma once

#include <string>
#include <vector>

namespace zg {

/// The lines of a batch file as a script for the POSIX shell: "cd", a quoted program with its words, "copy"
/// of one file to another. A drive line and "pause" do nothing; every line runs whatever became of the one
/// before it. Words are parted at blanks, and nothing in them means anything to the shell.
std::string asShellScript(const std::vector<std::string>& batchLines);

}  // namespace zg
