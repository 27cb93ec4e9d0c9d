#pragma once

// Winds by height.

#include <vector>

#include "tempoline/Wind.h"

namespace zg::tempoline {

struct Level {
    double height = 0;  ///< metres
    Wind wind;
};

/// Metres: heights that differ by less are equal, since sums of heights carry rounding errors.
constexpr double sameHeight = 1e-4;

/// Index of the lowest level at or above a height; the number of levels if there is none.
std::size_t firstLevelFrom(const std::vector<Level>& levels, double height);

/// The wind at a height, by linear interpolation of the components between levels of rising height; at a
/// level its own wind, unchanged. Missing below the first and above the last level, and if a level next to
/// the height has no wind.
Wind windAtHeight(const std::vector<Level>& levels, double height);

/// Whether a wind can be interpolated: it has speed and direction, or its speed is 0.
bool hasComponents(const Wind& wind);

}  // namespace zg::tempoline
