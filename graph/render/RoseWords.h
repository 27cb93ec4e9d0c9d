#pragma once

// A rose described in words, for readers who cannot see it and for tool tips of bars.

#include <string>

#include "graph/frq/ModPolarGraph.h"
#include "graph/render/SpeedUnits.h"

namespace zg {

/// Share of the displayed rose's periods in a direction (1 to 16) and a class (1 to 6), 0 to 1.
double shareOf(const ModPolarGraph& tables, int direction, int speedClass);

/// Share of all its classes.
double shareOf(const ModPolarGraph& tables, int direction);

/// Hours in a share of the displayed rose, rounded; below 0 if the file does not count its periods.
double hoursOf(const ModPolarGraph& tables, double share);

/// A share of 0 to 1 in percent with at most this many decimals: "1.51".
std::string percentText(double share, int decimals = 2);

/// A number with exactly this many decimals, 0 to 9: "1.50".
std::string fixedText(double value, int decimals);

/// "NNW, 3.3 to 5.4 m/s: 1.51 %, 132 hours", UTF-8; without hours if the file does not count them.
std::string barWords(const ModPolarGraph& tables, const SpeedLimits& limits, int direction, int speedClass);

/// The calm share of the displayed rose, 0 to 1.
double calmShare(const ModPolarGraph& tables);

/// "Calm: 4.5 %, 394 hours", UTF-8.
std::string calmWords(const ModPolarGraph& tables);

/// The displayed rose in sentences, UTF-8: its calms, its most frequent directions and its classes.
std::string roseWords(const ModPolarGraph& tables, const SpeedLimits& limits);

}  // namespace zg
