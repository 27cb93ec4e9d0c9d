#pragma once

#include "graph/model/Polar.h"

namespace zg {

/// The unit in which the legend and the words of bars give speeds.
enum class SpeedUnit { AsChosen, MetresPerSecond, Knots, KilometresPerHour, MilesPerHour };

/// What a rose can show beyond the window's look, which is that of the values here.
struct RoseStyle {
    double percentPerRing = percentPerUnit;  ///< share of the periods that a polar unit is, above 0
    double sectorWidth = 7.5;                ///< width of a bar in degrees, above 0 and up to 22.5
    bool hatch = false;                      ///< a pattern for each speed class over its colour
    bool numbers = false;     ///< the share of each direction in percent, past the end of its bar
    bool calmCircle = false;  ///< the calm share as a disc in the middle; bars and rings begin at its edge
    SpeedUnit unit = SpeedUnit::AsChosen;  ///< AsChosen: what the tables say, metres per second or knots
};

/// Fill of the calm circle and of its mark in the legend.
constexpr Colour calmColour = rgb(238, 238, 238);

}  // namespace zg
