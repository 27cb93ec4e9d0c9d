#pragma once

// The limits of the speed classes in the unit that the legend speaks. The shares belong to the classes that
// the file was made with; only the wording changes.

#include <string>

#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// Makes KnotClassLimit of FrqClassLimit: the calm threshold as "9.72E-01", the others with two decimals at
/// most. Raises 9 where the file gave no limits and 13 for a limit that is no number.
void buildKnotTable(ModPolarGraph& tables);

/// Rebuilds LegendClassLimit for the unit chosen and gives the unit's word, "m/s" or "knots". Where neither
/// is chosen, the word and the seven limits are empty. A knot table that is not ready is built first, with
/// the errors of buildKnotTable.
std::string rebuildLegendLimits(ModPolarGraph& tables);

}  // namespace zg
