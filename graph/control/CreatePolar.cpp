#include "graph/control/CreatePolar.h"

#include "base/Paths.h"
#include "graph/control/SuiteConfiguration.h"

namespace zg {

Polar createPolar(ModPolarGraph& tables) {
    fillFactoryStyle(tables);
    // One rose; as in every table of roses, index 0 is unused.
    tables.FrqCalmPercent.redim(1);
    tables.CurrentRose = 1;
    tables.FrqRoseCount = 1;
    readSuiteWorkDir(inApplicationDirectory("orbita.cfg"), tables.WorkDir);
    return {};
}

}  // namespace zg
