#include "graph/render/PartCanvas.h"

namespace zg {

Rect PartCanvas::there(const Rect& rect) const {
    const Point from = there(Point{rect.left, rect.top});
    const Point to = there(Point{rect.right, rect.bottom});
    return {from.x, from.y, to.x, to.y};
}

TextStyle PartCanvas::there(TextStyle style) const {
    style.size *= scale_;
    return style;
}

void PartCanvas::clear(Colour colour) {
    fillRectangle({0, 0, width_, height_}, colour);
    position_ = {};
}

void PartCanvas::blit(const PicturePointer& picture, const Rect& target) {
    canvas_.blit(picture, there(target));
}

void PartCanvas::blitMasked(const PicturePointer& picture, const PicturePointer& mask, const Rect& target) {
    canvas_.blitMasked(picture, mask, there(target));
}

void PartCanvas::fillRectangle(const Rect& rectangle, Colour colour) {
    canvas_.fillRectangle(there(rectangle), colour);
}

void PartCanvas::circle(Point centre, double radius, Colour colour) {
    canvas_.circle(there(centre), scale_ * radius, colour);
}

void PartCanvas::disc(Point centre, double radius, Colour fill, Colour outline) {
    canvas_.disc(there(centre), scale_ * radius, fill, outline);
}

void PartCanvas::line(Point from, Point to, const LineStyle& style) {
    canvas_.line(there(from), there(to), style);
}

void PartCanvas::pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) {
    canvas_.pie(there(centre), scale_ * radius, start, end, fill, outline);
}

void PartCanvas::fillPolygon(const std::vector<Point>& corners, Colour colour) {
    std::vector<Point> moved;
    moved.reserve(corners.size());
    for (const Point& corner : corners) moved.push_back(there(corner));
    canvas_.fillPolygon(moved, colour);
}

void PartCanvas::text(const std::string& text, const TextStyle& style) {
    canvas_.setTextPosition(there(position_));
    canvas_.text(text, there(style));
    position_ = {0, position_.y + measure(text, style).height};
}

TextSize PartCanvas::measure(const std::string& text, const TextStyle& style) const {
    const TextSize size = canvas_.measure(text, there(style));
    return {size.width / scale_, size.height / scale_};
}

}  // namespace zg
