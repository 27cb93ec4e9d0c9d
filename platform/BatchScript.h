#pragma once

#include <string>
#include <vector>

#include "processing/BatchFile.h"

namespace zg {

/// A run's batch file as a script for the POSIX shell: changes to the output directory, starts the processor
/// with the words of its line, separated at blanks, and copies the listing to the marker. No character in a
/// name has a meaning to the shell. A listing that the processor has not written in this run makes no marker.
///
/// If there is no marker, the reason is written in one line to standard error and to a file of that name,
/// which appears in one step; "" means no such file.
std::string asShellScript(const RunBatch& run, const std::string& reportFile);

/// The argument of the Windows command shell for a batch file: the quoted path in another pair of quotes,
/// which the shell removes. Without that pair it would remove the quotes of a path that has an ampersand or a
/// bracket.
std::string shellArguments(const std::string& batchFile);

/// The words that start a script. With a terminal program it runs in a window that stays open until a key is
/// pressed.
std::vector<std::string> scriptCommand(const std::string& script, const std::string& terminal);

}  // namespace zg
