#pragma once

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// A grid with its factory values. Creating it also initialises the shared tables for a plot without a file:
/// factory style if none is set, one rose, and the working directory from "orbita.cfg" in the program's
/// directory.
Polar createPolar(ModPolarGraph& tables);

}  // namespace zg
