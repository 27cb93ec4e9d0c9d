#include "graph/control/CreatePolar.h"

#include "base/Paths.h"
#include "graph/control/SuiteConfiguration.h"

namespace zg {

Polar createPolar(ModPolarGraph& tables) {
    fillFactoryStyle(tables);
    // One rose, and as in every table of roses nothing at index 0.
    tables.FrqCalmPercent.redim(1);
    tables.CurrentRose = 1;
    tables.FrqRoseCount = 1;
    readSuiteWorkDir(inApplicationDirectory("orbita.cfg"), tables.WorkDir);
    return {};
}

}  // namespace zg
