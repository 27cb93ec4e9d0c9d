#pragma once

// Colours of the six speed classes under names, as data.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/Style.h"

namespace zg {

/// Of the speed classes 1 to 6.
using Palette = std::array<Colour, 6>;

struct NamedPalette {
    const char* name;
    Palette colours;
};

/// All that have names, the factory's first.
const std::vector<NamedPalette>& palettes();

/// Nothing where there is none of that name.
std::optional<Palette> paletteNamed(const std::string& name);

/// A palette's file has a colour a line, "#1f77b4" or "31, 119, 180", six in all; empty lines and what
/// follows a semicolon are left out. Raises 13 with the line where one is no colour, 53 where there is no
/// such file, and 62 where there are fewer than six.
Palette readPalette(const std::string& path);

}  // namespace zg
