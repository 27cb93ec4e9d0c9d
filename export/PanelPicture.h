#pragma once

#include <vector>

#include "export/RosePicture.h"

namespace zg {

/// The pages of a panel of roses in their order, each this many pixels wide; all but the last one are full.
/// With several files, a rose has its file's first title line above its own.
std::vector<Drawing> panelDrawings(const std::vector<RoseOfFile>& roses, const PictureLook& look,
                                   const PanelShape& shape, int width);

/// The common look of several roses; if it scales itself, with the scale for their longest bar.
PictureLook sharedLook(const PictureLook& look, const std::vector<RoseOfFile>& roses);

}  // namespace zg
