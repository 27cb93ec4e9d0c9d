#pragma once

// Markers are characters of the symbol font "Wingdings". If it is not installed, the same symbols of another
// font are drawn, so that a marker is never an empty box.

#include <QString>
#include <string>
#include <string_view>

namespace zg {

/// Whether the font is the symbol font and is not installed here.
bool needsSymbols(const std::string& face);

/// The font that replaces it.
QString symbolFace();

/// The symbol of a character of the symbol font, as one Unicode character of the basic plane.
char16_t symbolOf(unsigned char code);

/// The text with each character replaced by its symbol.
QString symbolText(std::string_view text);

}  // namespace zg
