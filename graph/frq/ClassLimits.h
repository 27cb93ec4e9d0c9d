#pragma once

// The limits of the speed classes in the unit of the legend. The shares belong to the classes with which the
// file was made; only the wording changes.

#include <string>

#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// Makes KnotClassLimit from FrqClassLimit: the calm threshold as "9.72E-01", the others with up to two
/// decimals. Raises 9 if the file has no limits and 13 for a limit that is not a number.
void buildKnotTable(ModPolarGraph& tables);

/// Rebuilds LegendClassLimit for the chosen unit and returns its name, "m/s" or "knots". If no unit is
/// chosen, the name and the seven limits are empty. A missing knot table is built first, with the errors of
/// buildKnotTable.
std::string rebuildLegendLimits(ModPolarGraph& tables);

}  // namespace zg
