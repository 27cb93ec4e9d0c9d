#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"

/// The tables of a small file as a load leaves them: so many roses, six classes of 1, 2, 3, 4, 5 and 6
/// percent times the rose's number in every direction, and texts that tell where they come from.
zg::ModPolarGraph roseTables(int roses = 1);

/// The sixteen labels of that file in the order in which a redraw writes them, east first.
std::vector<std::string> labelsFromEast();
