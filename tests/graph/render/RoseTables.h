#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"

/// The tables of a small file after a load: this many roses, six classes of 1, 2, 3, 4, 5 and 6 percent times
/// the rose's number in every direction, and texts that name their origin.
zg::ModPolarGraph roseTables(int roses = 1);

/// The sixteen labels of that file in the order of a redraw, east first.
std::vector<std::string> labelsFromEast();
