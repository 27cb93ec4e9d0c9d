#pragma once

// Places in a grid of cells: which cells take part in a wind, and with what weight.

#include <array>
#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Projection.h"
#include "tempoline/Wind.h"

namespace zg::tempoline {

/// Cells i from 1 (west) to nx, j from 1 (south) to ny; x and y of the centre of (1,1) and the size of a cell
/// in the units of the map (km, or degrees for LL).
struct Grid {
    MapSetting map;
    double x1 = 0;
    double y1 = 0;
    double cellSize = 1;
    int firstI = 1;  ///< of the cells that the file holds
    int lastI = 1;
    int firstJ = 1;
    int lastJ = 1;
};

struct CellShare {
    int i = 1;
    int j = 1;
    double weight = 1;
};

/// Where an output lies. Throws a Failure that names it where it has no place in the projection.
struct GridPlace {
    MapPoint onMap;    ///< of the grid
    MapPoint inCells;  ///< 1, 1 is the centre of the south-western cell
};
GridPlace placeIn(const Grid& grid, const OutputRequest& output, const Control& control);

/// The cells around the place of an output, those with weight 0 left out. A place belongs to the grid up to
/// the outer edges of its cells; in the outer half of these the outermost centres count. Throws a Failure
/// that names the output where it lies outside.
std::vector<CellShare> cellsAround(const GridPlace& place, const OutputRequest& output, SpatialMethod method,
                                   const Grid& grid);

/// Sums the winds of the cells by their components; a single one stays untouched. Missing where one is
/// missing.
Wind combined(const std::vector<CellShare>& shares, const std::vector<Wind>& winds);

/// The speed at a height above the ground below the lowest level, by the neutral logarithmic profile over a
/// roughness of 0.1 m; the direction stays.
Wind neutralProfile(const Wind& lowest, double lowestHeight, double height);

}  // namespace zg::tempoline
