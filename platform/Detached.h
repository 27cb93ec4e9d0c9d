#pragma once

#include <string>
#include <vector>

namespace zg {

/// Starts a program in a session of its own, so that what ends this program does not end it, and does not
/// wait for it. The words are bytes as they stand, the first is looked for in PATH. False where there is no
/// such program, or nothing can be started. Not for Windows.
bool startDetached(const std::vector<std::string>& words);

/// The path of a program of PATH; "" where there is none.
std::string programInPath(const std::string& name);

}  // namespace zg
