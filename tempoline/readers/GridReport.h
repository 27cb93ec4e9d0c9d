#pragma once

// What the listing reports about a grid and the places in it.

#include <string>
#include <vector>

#include "tempoline/readers/Grid.h"

namespace zg::tempoline {

/// The map, the cells in the file, and their size.
std::vector<std::string> gridLines(const Grid& grid);

/// The map of X and Y, their position in the grid, and the cells with their weights.
std::vector<std::string> placeLines(const GridPlace& place, const std::vector<CellShare>& shares,
                                    const Control& control, const Grid& grid);

}  // namespace zg::tempoline
