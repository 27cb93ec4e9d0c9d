#pragma once

#include <string>
#include <vector>

#include "graph/frq/ModPolarGraph.h"
#include "graph/render/Canvas.h"
#include "graph/render/SpeedUnits.h"

namespace zg {

/// The table of a rose as texts: a heading, a row a direction with its shares by class, their sum and hours,
/// the sums by class, and beneath it lines on calms, valid hours and the mean speed.
struct ShareTable {
    std::vector<std::string> heading;
    std::vector<std::vector<std::string>> rows;  ///< the directions, then the sums
    std::vector<std::string> lines;
};

/// Percents have two decimals, as tables of wind engineers do. Hours are left out where the file does not
/// count its periods. UTF-8.
ShareTable shareTable(const ModPolarGraph& tables, const SpeedLimits& limits);

/// Mean speed of the rose on show in metres per second, each class by its middle: the last one, which is
/// open, from its limit by half the width of the class before it, and calms as 0.
double meanByClassMiddle(const ModPolarGraph& tables);

/// A page's width for the table beside a rose of that side.
int shareTableWidth(int side);

/// Draws the table in the whole of a canvas.
void drawShareTable(Canvas& canvas, const ModPolarGraph& tables, const SpeedLimits& limits);

}  // namespace zg
