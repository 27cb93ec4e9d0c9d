#pragma once

#include <string>
#include <vector>

namespace zg {

/// The lines of a batch file as a script for the POSIX shell: "cd", a quoted program with its words, "copy"
/// of one file to another. A drive line and "pause" do nothing; every line runs whatever became of the one
/// before it. Words are parted at blanks, and nothing in them means anything to the shell.
std::string asShellScript(const std::vector<std::string>& batchLines);

/// The words that start a script in a session of its own, so that what ends the program does not end the
/// script. With a terminal program it runs in a window that stays open until a key is pressed.
std::vector<std::string> scriptCommand(const std::string& script, const std::string& terminal);

}  // namespace zg
