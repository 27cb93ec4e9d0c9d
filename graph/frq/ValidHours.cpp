#include "graph/frq/ValidHours.h"

#include "base/Numbers.h"

namespace zg {

bool hasEnoughValidHours(const ModPolarGraph& tables, int rose, float lowestPercent) {
    if (tables.FrqVersion == "2.0") return true;
    if (toSingle(tables.FrqVersion) < 2.1F) return false;
    return !(tables.FrqPercentValid(rose) < lowestPercent);
}

}  // namespace zg
