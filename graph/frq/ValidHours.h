#pragma once

#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// Whether a rose (from 1) of the loaded file has enough valid hours to be exported: at least the given
/// percentage. Version 2.0 does not state the percentage, and all of its roses have enough; roses of other
/// versions before 2.1 never have. Raises 13 if no file has been loaded, and 9 for a rose that does not
/// exist.
bool hasEnoughValidHours(const ModPolarGraph& tables, int rose, float lowestPercent);

}  // namespace zg
