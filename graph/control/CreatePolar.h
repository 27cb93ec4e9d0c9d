#pragma once

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// A grid with its factory values. Creating it also initialises the tables for a plot without a file: factory
/// style if none is set, one rose, and the working directory from "orbita.cfg" in the program's directory. No
/// other tables are touched.
Polar createPolar(ModPolarGraph& tables);

}  // namespace zg
