#pragma once

// Small files as one text.

#include <cstddef>
#include <string>

namespace zg::tempoline {

/// Throws a Failure of status Failed where the file cannot be read or is longer, with what it is then too
/// long for; no more of it than that is ever in memory.
std::string wholeText(const std::string& path, std::size_t longest, const std::string& what);

}  // namespace zg::tempoline
