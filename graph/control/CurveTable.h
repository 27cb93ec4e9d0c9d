#pragma once

#include <functional>
#include <vector>

#include "graph/control/SweepWatch.h"
#include "graph/model/Plot.h"

namespace zg {

/// One sampled point of a curve: angle in degrees, place and radius in polar units rounded to 4 decimals, y
/// upwards.
struct CurveRow {
    float angle = 0;
    double x = 0;
    double y = 0;
    double radius = 0;
};

/// The points of a curve from its first angle to its last. The equation is evaluated twice a point, once for
/// x and once for y. Tells of each row. Raises what the scripts raise, 11 for a step of 0, 7, "Out of
/// memory", for more rows than can be kept, and without a service of events 32811 beyond the limit of
/// SweepWatch. With one there is no limit, and SweepStopped is thrown where it says so. No single call of a
/// script has a limit of its own.
std::vector<CurveRow> tabulateCurve(const GrapInfo& graph, ScriptEngine::Clock clock,
                                    const std::function<void()>& onRow = {}, SweepWatch::Serve serve = {});

}  // namespace zg
