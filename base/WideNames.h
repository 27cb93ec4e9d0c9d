#pragma once

// Conversion of names to UTF-16, the form that Windows uses, and back.

#include <string>
#include <string_view>

namespace zg {

/// Converts each part of a path (between "/" or "\") from UTF-8 if it is valid, otherwise from windows-1252:
/// a directory may come from the system and the name in it from a text that the user typed. Half a surrogate
/// pair, which Windows allows in names, is three bytes.
std::u16string wideName(std::string_view bytes);

/// UTF-8, with three bytes for half a surrogate pair: wideName gives the same units again.
std::string narrowName(std::u16string_view units);

}  // namespace zg
