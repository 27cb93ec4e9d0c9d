#pragma once

#include <string>
#include <vector>

#include "processing/BatchFile.h"

namespace zg {

/// A run's batch file as a script for the POSIX shell: into the output directory, the processor with the
/// words of its line, parted at blanks, and the listing copied to the marker. Nothing in a name means
/// anything to the shell. A listing that the processor has not written in this run makes no marker.
///
/// Where no marker comes, the reason is written in one line on standard error and to a file of that name,
/// which appears whole; "" is no such file.
std::string asShellScript(const RunBatch& run, const std::string& reportFile);

/// What the command shell of Windows is handed after its own name for a batch file: the path in quotes, and
/// the whole in one more pair of quotes, which the shell takes off. Without that pair it would take off those
/// of a path that has an ampersand or a bracket.
std::string shellArguments(const std::string& batchFile);

/// The words that start a script. With a terminal program it runs in a window that stays open until a key is
/// pressed.
std::vector<std::string> scriptCommand(const std::string& script, const std::string& terminal);

}  // namespace zg
