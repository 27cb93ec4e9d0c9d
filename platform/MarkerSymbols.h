#pragma once

// Markers are characters of the symbol face "Wingdings". Where that face is missing they are drawn as the
// same symbols of a face that has them, so that a marker is never an empty box.

#include <QString>
#include <string>
#include <string_view>

namespace zg {

/// The face is the symbol face and is not installed here.
bool needsSymbols(const std::string& face);

/// The face that stands in for it.
QString symbolFace();

/// The symbol that a character of the symbol face shows, as one Unicode character of the basic plane.
char16_t symbolOf(unsigned char code);

/// The text with each character as its symbol.
QString symbolText(std::string_view text);

}  // namespace zg
