#pragma once

// What the listing says of a grid and of the places in it.

#include <string>
#include <vector>

#include "tempoline/readers/Grid.h"

namespace zg::tempoline {

/// The map, the cells that the file holds, their size.
std::vector<std::string> gridLines(const Grid& grid);

/// The map that X and Y were taken in, where they lie on the grid's, and the cells with their weights.
std::vector<std::string> placeLines(const GridPlace& place, const std::vector<CellShare>& shares,
                                    const Control& control, const Grid& grid);

}  // namespace zg::tempoline
