#pragma once

#include "graph/render/CanvasRecord.h"
#include "graph/render/Frame.h"

namespace zg {

/// Writes the share of each direction beyond the end of its bar, on its axis, as near as other texts allow;
/// bars are avoided while there is room. A share for which there is no position on the page is left out. The
/// record has the texts already on the page.
void drawShareNumbers(Frame& frame, const CanvasRecord& written);

}  // namespace zg
