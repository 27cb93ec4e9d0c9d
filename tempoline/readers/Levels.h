#pragma once

// Winds by height.

#include <vector>

#include "tempoline/Wind.h"

namespace zg::tempoline {

struct Level {
    double height = 0;  ///< metres
    Wind wind;
};

/// Metres: heights that differ by less are one, since sums of heights carry the noise of arithmetic.
constexpr double sameHeight = 1e-4;

/// The lowest level at a height or above it; as many as there are levels where there is none.
std::size_t firstLevelFrom(const std::vector<Level>& levels, double height);

/// The wind at a height between levels that rise, components interpolated linearly in height; at a level its
/// own wind, untouched. Missing below the first and above the last level, and where a level beside it has no
/// wind.
Wind windAtHeight(const std::vector<Level>& levels, double height);

/// A wind that can be interpolated: one with speed and direction, or of speed 0.
bool hasComponents(const Wind& wind);

}  // namespace zg::tempoline
