#pragma once

// Winds by height.

#include <vector>

#include "tempoline/Wind.h"

namespace zg::tempoline {

struct Level {
    double height = 0;  ///< metres
    Wind wind;
};

/// The wind at a height between levels that rise, components interpolated linearly in height; at a level its
/// own wind, untouched. Missing below the first and above the last level, and where a level beside it has no
/// wind.
Wind windAtHeight(const std::vector<Level>& levels, double height);

/// A wind that can be interpolated: one with speed and direction, or of speed 0.
bool hasComponents(const Wind& wind);

}  // namespace zg::tempoline
