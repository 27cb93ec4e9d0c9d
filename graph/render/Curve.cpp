#include "graph/render/Curve.h"

#include <cmath>

namespace zg {

namespace {

/// Points closer than this to the end of the line change no pixel; a million of them would only cost time.
constexpr double smallestMove = 0.1;

constexpr std::int32_t alignRight = 1;
constexpr std::int32_t alignHorizontalCentre = 2;
constexpr std::int32_t alignBottom = 8;
constexpr std::int32_t alignVerticalCentre = 16;

void paintPicture(Canvas& canvas, Point at, const Marker& marker, const MarkerPictures& pictures) {
    if (!pictures.picture) return;
    const TextSize size{static_cast<double>(marker.PictureWidth), static_cast<double>(marker.PictureHeight)};
    const Point corner = alignedCorner(at, size, marker.GetHorizAlign, marker.GetVertAlign);
    const Rect target{corner.x, corner.y, corner.x + size.width, corner.y + size.height};
    if (!marker.Transparent)
        canvas.blit(pictures.picture, target);
    else if (pictures.mask)
        canvas.blitMasked(pictures.picture, pictures.mask, target);
}

void paintCharacter(Canvas& canvas, Point at, const Marker& marker) {
    const TextStyle style{marker.Font.Name, static_cast<double>(marker.Font.Size), marker.Font.Bold,
                          marker.Font.Italic, marker.FillColor};
    canvas.setTextPosition(
        alignedCorner(at, canvas.measure(marker.Style, style), marker.GetHorizAlign, marker.GetVertAlign));
    canvas.text(marker.Style, style);
}

}  // namespace

void CurvePainter::lineTo(Canvas& canvas, Point point) {
    if (series_.Pen.AllowShading) paintShading(canvas, centre_, pen_, point, series_.Pen);
    if (series_.Pen.AllowConVertices) paintSegment(canvas, pen_, point, series_.Pen, length_);
    length_ += std::hypot(point.x - pen_.x, point.y - pen_.y);
    pen_ = point;
    waiting_ = false;
}

void CurvePainter::paint(Canvas& canvas, Point point) {
    if (series_.AllowPen) {
        if (!begun_) {
            pen_ = point;
        } else if (std::abs(point.x - pen_.x) + std::abs(point.y - pen_.y) >= smallestMove) {
            lineTo(canvas, point);
        } else {
            waiting_ = true;
        }
        last_ = point;
        begun_ = true;
    }
    if (series_.AllowMarker) paintMarker(canvas, point, series_.Marker, pictures_);
}

void CurvePainter::finish(Canvas& canvas) {
    if (waiting_) lineTo(canvas, last_);
}

void paintShading(Canvas& canvas, Point centre, Point from, Point to, const Pen& pen) {
    canvas.fillPolygon({centre, from, to}, pen.FillColor);
    // Adjacent areas share this edge: without it, antialiasing of both would leave a pale seam.
    canvas.line(centre, from, {pen.FillColor, 1, 0, 0});
}

void paintSegment(Canvas& canvas, Point from, Point to, const Pen& pen, double phase) {
    canvas.line(from, to, {pen.FillColor, pen.Weight, pen.Style, pen.Style == 0 ? 0 : phase});
}

Point alignedCorner(Point at, const TextSize& size, std::int32_t horizontal, std::int32_t vertical) {
    const double x =
        horizontal == alignHorizontalCentre ? size.width / 2 : (horizontal == alignRight ? 0 : size.width);
    const double y =
        vertical == alignVerticalCentre ? size.height / 2 : (vertical == alignBottom ? 0 : size.height);
    return {at.x - x, at.y - y};
}

void paintMarker(Canvas& canvas, Point at, const Marker& marker, const MarkerPictures& pictures) {
    if (marker.UsePicture)
        paintPicture(canvas, at, marker, pictures);
    else
        paintCharacter(canvas, at, marker);
}

}  // namespace zg
