#pragma once

#include <string>
#include <vector>

namespace zg {

/// Starts a program in a session of its own, so that it survives the end of this program, and does not wait
/// for it. The words are bytes without conversion; the first is searched for in PATH. False if there is no
/// such program, or it cannot be started.
bool startDetached(const std::vector<std::string>& words);

/// The path of a program in PATH; "" if there is none.
std::string programInPath(const std::string& name);

}  // namespace zg
