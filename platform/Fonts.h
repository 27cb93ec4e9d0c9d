#pragma once

#include <string>

namespace zg {

/// Where the system lacks the face "Arial", the faces that lie in the directory "fonts" beside the program
/// take its place: Liberation Sans is as wide in every letter. Call it once, after the toolkit has started.
void useFontsBeside(const std::string& programDirectory);

}  // namespace zg
