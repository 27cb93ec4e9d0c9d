#pragma once

#include <string>
#include <vector>

#include "graph/frq/ModPolarGraph.h"
#include "graph/render/Canvas.h"
#include "graph/render/SpeedUnits.h"

namespace zg {

/// The table of a rose as texts: a heading, one row per direction with its shares by class, their sum and
/// hours, the sums by class, and below it lines on calms, valid hours and the mean speed.
struct ShareTable {
    std::vector<std::string> heading;
    std::vector<std::vector<std::string>> rows;  ///< the directions, then the sums
    std::vector<std::string> lines;
};

/// Percentages have two decimals, as usual in wind engineering. Hours are left out if the file does not count
/// its periods. UTF-8.
ShareTable shareTable(const ModPolarGraph& tables, const SpeedLimits& limits);

/// Mean speed of the displayed rose in metres per second, with the middle of each class; for the open last
/// class, its limit plus half the width of the class before it, and 0 for calms.
double meanByClassMiddle(const ModPolarGraph& tables);

/// A page's width with the table beside a rose of that side.
int shareTableWidth(int side);

/// Draws the table in the whole of a canvas.
void drawShareTable(Canvas& canvas, const ModPolarGraph& tables, const SpeedLimits& limits);

}  // namespace zg
