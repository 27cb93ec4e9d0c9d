#pragma once

#include <array>
#include <string>

#include "graph/frq/ModPolarGraph.h"
#include "graph/render/RoseStyle.h"

namespace zg {

/// The limits of the speed classes as texts, the calm threshold first, and their unit.
struct SpeedLimits {
    std::array<std::string, 7> limits;
    std::string unit;
    double perMetrePerSecond = 1;  ///< what a metre per second is in that unit
};

/// The file's limits in a unit, with two decimals at most; AsChosen counts as metres per second. Raises 9
/// where the file gave too few limits and 13 for one that is no number.
SpeedLimits speedLimits(const ModPolarGraph& tables, SpeedUnit unit);

/// The limits of a class 1 to 6: "3.3 to 5.4 m/s", of the last one "10.8+ m/s".
std::string classWords(const SpeedLimits& limits, int speedClass);

}  // namespace zg
