#pragma once

#include <cstdint>

#include "base/MathLibrary.h"
#include "base/Style.h"

namespace zg {

/// Centre of the grid. While Auto is set it is the middle of the surface.
struct Origin {
    bool Auto = true;
    float X = 0;  ///< shift to the right at 100 percent zoom
    float Y = 0;  ///< shift upward

    void SetPos(float x, float y) {
        X = x;
        Y = y;
    }
};

/// What one polar unit is in a wind rose, in percent of the periods.
constexpr double percentPerUnit = 5;

/// The polar grid.
struct Polar {
    Colour GridColor = 0;
    Colour FillColor = white;  ///< of the polar disc
    Colour LabelColor = 0;     ///< foreground while spokes are drawn
    float Radius = 5;          ///< outer ring in polar units
    zg::Origin Origin;
    float Unit = 0.5F;  ///< spacing between ruler and grid marks in polar units

    /// Of the circle with radius Radius x Unit.
    float Area() const { return static_cast<float>(MathLibrary::Area(Radius * Unit)); }
    float Circumference() const { return static_cast<float>(MathLibrary::Circumference(Radius * Unit)); }
    float Diameter() const { return static_cast<float>(MathLibrary::Diameter(Radius * Unit)); }
};

}  // namespace zg
