#pragma once

#include "graph/model/Polar.h"

namespace zg {

/// The unit of speeds in the legend and in descriptions of bars.
enum class SpeedUnit { AsChosen, MetresPerSecond, Knots, KilometresPerHour, MilesPerHour };

/// Options of a rose beyond the window's look, which has the values given here.
struct RoseStyle {
    double percentPerRing = percentPerUnit;  ///< share of the periods per polar unit, above 0
    double sectorWidth = 7.5;                ///< width of a bar in degrees, above 0 and up to 22.5
    bool hatch = false;                      ///< a pattern for each speed class on top of its colour
    bool numbers = false;     ///< the share of each direction in percent, beyond the end of its bar
    bool calmCircle = false;  ///< the calm share as a disc in the middle, where bars and rings start
    SpeedUnit unit = SpeedUnit::AsChosen;  ///< AsChosen: as in the tables, metres per second or knots
    bool shrinkTexts = false;  ///< below a zoom of 100 percent legend and titles are smaller with the page
};

/// Fill of the calm circle and of its mark in the legend.
constexpr Colour calmColour = rgb(238, 238, 238);

}  // namespace zg
