#pragma once

// Places in a grid of cells: which cells contribute to a wind, and with what weight.

#include <array>
#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Projection.h"
#include "tempoline/Wind.h"

namespace zg::tempoline {

/// Cells i from 1 (west) to nx, j from 1 (south) to ny; x and y of the centre of (1,1) and the cell size in
/// the units of the map (km, or degrees for LL).
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

/// The position of an output. Throws a Failure that names it if it cannot be projected.
struct GridPlace {
    MapPoint onMap;    ///< of the grid
    MapPoint inCells;  ///< 1, 1 is the centre of the south-western cell
};
GridPlace placeIn(const Grid& grid, const OutputRequest& output, const Control& control);

/// The cells around the place of an output, without those of weight 0. The grid extends to the outer edges of
/// its cells; in the outer half of the edge cells the outermost centres are used. Throws a Failure that names
/// the output if it is outside.
std::vector<CellShare> cellsAround(const GridPlace& place, const OutputRequest& output, SpatialMethod method,
                                   const Grid& grid);

/// The weighted sum of the winds of the cells by components; a single one is returned unchanged. Missing if
/// any of them is missing.
Wind combined(const std::vector<CellShare>& shares, const std::vector<Wind>& winds);

/// The speed at a height above the ground below the lowest level, by the neutral logarithmic profile with a
/// roughness length of 0.1 m; the direction is unchanged.
Wind neutralProfile(const Wind& lowest, double lowestHeight, double height);

}  // namespace zg::tempoline
