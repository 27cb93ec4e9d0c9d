#pragma once

#include "graph/render/Frame.h"

namespace zg {

/// Writes "5%", "10%" and so on, one per polar unit, just off the east spoke. Each is positioned according to
/// the size of the previous label.
void drawPercentLabels(Frame& frame);

}  // namespace zg
