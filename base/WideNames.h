#pragma once

// Names as UTF-16, in which Windows keeps them, and back.

#include <string>
#include <string_view>

namespace zg {

/// Each part of a path (between "/" or "\") that is UTF-8 as such, any other as windows-1252: a directory may
/// come from the system and the name in it from a text that the user typed. Half a pair of units, which names
/// of that system may have, is three bytes.
std::u16string wideName(std::string_view bytes);

/// UTF-8, and three bytes for half a pair: wideName gives the same units again.
std::string narrowName(std::u16string_view units);

}  // namespace zg
