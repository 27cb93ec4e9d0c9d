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
    double perMetrePerSecond = 1;  ///< one metre per second in that unit
};

/// The file's limits in a unit, with at most two decimals; AsChosen means metres per second. Raises 9 if the
/// file has too few limits and 13 for one that is not a number.
SpeedLimits speedLimits(const ModPolarGraph& tables, SpeedUnit unit);

/// The limits of a class 1 to 6: "3.3 to 5.4 m/s", for the last one "10.8+ m/s".
std::string classWords(const SpeedLimits& limits, int speedClass);

}  // namespace zg
