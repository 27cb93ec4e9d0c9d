#pragma once

#include <functional>
#include <vector>

#include "graph/control/SweepWatch.h"
#include "graph/model/Plot.h"

namespace zg {

/// One sampled point of a curve: angle in degrees, position and radius in polar units rounded to 4 decimals,
/// y upwards.
struct CurveRow {
    float angle = 0;
    double x = 0;
    double y = 0;
    double radius = 0;
};

/// Samples a curve from its first angle to its last. The equation is evaluated twice per point, once for x
/// and once for y. Reports each row. Raises the errors of scripts, 11 for a step of 0, 7, "Out of memory",
/// for more rows than can be kept, and, if no function serves events, 32811 beyond the limit of SweepWatch.
/// With such a function there is no limit, and SweepStopped is thrown when it returns false. Single calls of
/// a script have no limit of their own.
std::vector<CurveRow> tabulateCurve(const GrapInfo& graph, ScriptEngine::Clock clock,
                                    const std::function<void()>& onRow = {}, SweepWatch::Serve serve = {});

}  // namespace zg
