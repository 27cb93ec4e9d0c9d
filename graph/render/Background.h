#pragma once

#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

/// The positions of the copies of a background picture of that size on the surface. Style 0 is top left, 1
/// centred, 2 stretched, any other tiled; tiling raises 11 for a picture without width or height.
std::vector<Rect> backgroundPlaces(double width, double height, double pictureWidth, double pictureHeight,
                                   std::int32_t pictureStyle);

void drawBackground(Canvas& canvas, const PicturePointer& picture, std::int32_t pictureStyle);

}  // namespace zg
