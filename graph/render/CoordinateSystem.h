#pragma once

#include "graph/render/Frame.h"

namespace zg {

/// Number of spokes for a ShowGrid value: 64, 16, or none.
int spokeCount(std::int32_t showGrid);

/// Disc, rings and spokes.
void drawCoordinateSystem(Frame& frame);

}  // namespace zg
