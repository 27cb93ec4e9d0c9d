#pragma once

// Named colours for the six speed classes, as data.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/Style.h"

namespace zg {

/// Colours of the speed classes 1 to 6.
using Palette = std::array<Colour, 6>;

struct NamedPalette {
    const char* name;
    Palette colours;
};

/// The names of all palettes, the factory's first.
const std::vector<NamedPalette>& palettes();

/// Nothing if there is no palette of that name.
std::optional<Palette> paletteNamed(const std::string& name);

/// Reads a palette file: one colour per line, "#1f77b4" or "31, 119, 180", six in all; empty lines and text
/// after a semicolon are ignored. Raises 13 with the line of an invalid colour, 53 if the file does not
/// exist, and 62 if there are fewer than six colours.
Palette readPalette(const std::string& path);

}  // namespace zg
