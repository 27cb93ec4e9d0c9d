#pragma once

#include <string>
#include <string_view>

/// Puts a program at this path, whose name must end in ".exe", that does what the lines say: see
/// stand_in.cpp.
void makeStandIn(const std::string& path, std::string_view lines);
