#pragma once

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// A grid with its factory values. Its creation also readies the shared tables for a plot without a file:
/// factory style where none is set, one rose on show, and the working directory from "orbita.cfg" in the
/// program's directory.
Polar createPolar(ModPolarGraph& tables);

}  // namespace zg
