#pragma once

#include "graph/render/CanvasRecord.h"
#include "graph/render/Frame.h"

namespace zg {

/// Writes the share of each direction past the end of its bar, on its axis, as near as no other text is in
/// its way; bars are passed over while there is room. One that finds no place on the page is left out. The
/// record has the texts that are there.
void drawShareNumbers(Frame& frame, const CanvasRecord& written);

}  // namespace zg
