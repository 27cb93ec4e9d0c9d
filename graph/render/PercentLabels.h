#pragma once

#include "graph/render/Frame.h"

namespace zg {

/// Writes "5%", "10%" and so on, one a polar unit, just off the east spoke. Each is placed by the size of the
/// label written before it.
void drawPercentLabels(Frame& frame);

}  // namespace zg
