#include "tempoline/readers/GridReport.h"

#include "tempoline/MapText.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

std::string pairText(MapPoint point, int decimals) {
    return fixedText(point.x, decimals) + ", " + fixedText(point.y, decimals);
}

}  // namespace

std::vector<std::string> gridLines(const Grid& grid) {
    const std::string unit = unitOf(grid.map);
    return {entryLine("Map of the data", mapText(grid.map)),
            entryLine("Cells of the data", std::to_string(grid.firstI) + " to " + std::to_string(grid.lastI) +
                                               " eastward, " + std::to_string(grid.firstJ) + " to " +
                                               std::to_string(grid.lastJ) + " northward, of " +
                                               shortText(grid.cellSize) + " " + unit),
            entryLine("Centre of cell 1, 1", pairText({grid.x1, grid.y1}, 4) + " " + unit)};
}

std::vector<std::string> placeLines(const GridPlace& place, const std::vector<CellShare>& shares,
                                    const Control& control, const Grid& grid) {
    std::vector<std::string> lines;
    const MapSetting asked = completed(control.map, grid.map);
    if (control.cellCoordinates)
        lines.push_back(entryLine("X and Y are", "cells of the data"));
    else if (isSameMap(asked, grid.map))
        lines.push_back(entryLine("X and Y are", "on the map of the data"));
    else
        lines.push_back(entryLine("X and Y are", "on " + mapText(asked)));
    lines.push_back(entryLine("On the map of the data", pairText(place.onMap, 4) + " " + unitOf(grid.map)));
    lines.push_back(entryLine("In cells of the data", pairText(place.inCells, 4)));
    std::string cells;
    for (const CellShare& share : shares)
        cells += (cells.empty() ? "" : "; ") + std::to_string(share.i) + ", " + std::to_string(share.j) +
                 " by " + fixedText(share.weight, 6);
    lines.push_back(entryLine("Cells and weights", cells));
    return lines;
}

}  // namespace zg::tempoline
