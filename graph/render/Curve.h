#pragma once

// Paints one step of a curve: the line from the previous point, the shading below it, and the marker.

#include "graph/model/Series.h"
#include "graph/render/Canvas.h"

namespace zg {

/// The pictures of a picture marker; null if a file is missing or not a picture.
struct MarkerPictures {
    PicturePointer picture;
    PicturePointer mask;
};

/// Fills the area between the centre and the line.
void paintShading(Canvas& canvas, Point centre, Point from, Point to, const Pen& pen);

/// The phase is the length of the curve before this piece.
void paintSegment(Canvas& canvas, Point from, Point to, const Pen& pen, double phase);

/// Top left corner of an object of that size that is aligned to a point: flags 0 left, 1 right, 2 centre and
/// 4 top, 8 bottom, 16 centre of the point.
Point alignedCorner(Point at, const TextSize& size, std::int32_t horizontal, std::int32_t vertical);

/// The marker's character, or its picture; a missing picture paints nothing.
void paintMarker(Canvas& canvas, Point at, const Marker& marker, const MarkerPictures& pictures);

}  // namespace zg
