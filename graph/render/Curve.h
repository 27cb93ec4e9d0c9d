#pragma once

// Paints the points of a curve: the line from the previous point, the shading below it, and the marker.

#include <utility>

#include "graph/model/Series.h"
#include "graph/render/Canvas.h"
#include "graph/render/PolarGeometry.h"

namespace zg {

/// The pictures of a picture marker; null if a file is missing or not a picture.
struct MarkerPictures {
    PicturePointer picture;
    PicturePointer mask;
};

/// Paints the points of a curve one after the other. The canvas is requested for each point, since the window
/// may display it in between.
class CurvePainter {
 public:
    CurvePainter(const Series& series, MarkerPictures pictures, const PolarGeometry& geometry)
        : series_(series), pictures_(std::move(pictures)), centre_(geometry.centre()) {}

    void paint(Canvas& canvas, Point point);

    /// Paints the last points, which paint may have held back.
    void finish(Canvas& canvas);

 private:
    void lineTo(Canvas& canvas, Point point);

    const Series& series_;
    MarkerPictures pictures_;
    Point centre_;
    double length_ = 0;  ///< of what has been painted
    bool begun_ = false;
    bool waiting_ = false;
    Point pen_;   ///< end of what has been painted
    Point last_;  ///< the previous point, which may be too close to the pen to be visible
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
