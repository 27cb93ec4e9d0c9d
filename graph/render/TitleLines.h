#pragma once

#include "graph/render/Frame.h"

namespace zg {

/// Writes GraphTitle, GraphSubTitle and GraphCaption at the upper left, an empty one as an empty line;
/// nothing if all three are empty.
void drawTitleLines(Frame& frame);

}  // namespace zg
