#pragma once

// Reads a small file as one text.

#include <cstddef>
#include <string>

namespace zg::tempoline {

/// Throws a Failure of status Failed if the file cannot be read or exceeds the limit; `what` says in the
/// message what it is then too long for. Never holds more than the limit in memory.
std::string wholeText(const std::string& path, std::size_t longest, const std::string& what);

}  // namespace zg::tempoline
