#pragma once

// What one step of a curve puts on the canvas: the line from the point before, the shading below it, and the
// marker.

#include "graph/model/Series.h"
#include "graph/render/Canvas.h"

namespace zg {

/// The pictures of a picture marker; null where a file is missing or no picture.
struct MarkerPictures {
    PicturePointer picture;
    PicturePointer mask;
};

/// Fills the area between the centre and the line.
void paintShading(Canvas& canvas, Point centre, Point from, Point to, const Pen& pen);

/// The phase is the length of the curve before this piece of it.
void paintSegment(Canvas& canvas, Point from, Point to, const Pen& pen, double phase);

/// Top left corner of something of that size that is aligned to a point: flags 0 left, 1 right, 2 centre and
/// 4 top, 8 bottom, 16 centre of the point.
Point alignedCorner(Point at, const TextSize& size, std::int32_t horizontal, std::int32_t vertical);

/// The marker's character, or its picture; a picture that is missing leaves nothing.
void paintMarker(Canvas& canvas, Point at, const Marker& marker, const MarkerPictures& pictures);

}  // namespace zg
