#pragma once

#include <vector>

#include "export/RosePicture.h"

namespace zg {

/// The pages of a panel of roses in their order, each so many pixels wide; all but the last one are full.
/// Roses of several files have their file's first title line above their own.
std::vector<Drawing> panelDrawings(const std::vector<RoseOfFile>& roses, const PictureLook& look,
                                   const PanelShape& shape, int width);

/// The look for all of some roses: of one that scales itself the scale that holds their longest bar.
PictureLook sharedLook(const PictureLook& look, const std::vector<RoseOfFile>& roses);

}  // namespace zg
