#include "platform/QtCanvas.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/MarkerSymbols.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr double layoutDotsPerInch = 96;
constexpr double millimetresPerInch = 25.4;
/// No page is wide enough to show more of a line than this.
constexpr std::size_t longestText = 4096;
/// Coordinates beyond any page: anything further out is invisible, and the rasteriser must not receive it.
constexpr double farOut = 1e6;

double bounded(double value) {
    if (std::isnan(value)) return 0;
    return std::clamp(value, -farOut, farOut);
}

QPointF toQPointF(Point point) { return {bounded(point.x), bounded(point.y)}; }

QRectF toQRectF(const Rect& rect) {
    return {QPointF(bounded(rect.left), bounded(rect.top)),
            QPointF(bounded(rect.right), bounded(rect.bottom))};
}

QRectF around(Point centre, double radius) {
    const double r = bounded(radius);
    return {bounded(centre.x) - r, bounded(centre.y) - r, 2 * r, 2 * r};
}

/// The toolkit fills with numbers of 32 bits on Windows, which overflow when a shape reaches farther, in dots
/// of the device.
constexpr double farFilled = 3e4;

bool isWithin(const QRectF& bounds, const QRectF& limits) {
    return bounds.left() >= limits.left() && bounds.top() >= limits.top() &&
           bounds.right() <= limits.right() && bounds.bottom() <= limits.bottom();
}

/// The part of a filled shape on one side of a line, on which the distance is not negative.
template <typename Distance>
QPolygonF onOneSide(const QPolygonF& shape, Distance distance) {
    QPolygonF part;
    for (qsizetype i = 0; i < shape.size(); ++i) {
        const QPointF from = shape[i];
        const QPointF to = shape[(i + 1) % shape.size()];
        const double here = distance(from);
        const double there = distance(to);
        if (here >= 0) part.append(from);
        if ((here >= 0) != (there >= 0)) part.append(from + (to - from) * (here / (here - there)));
    }
    return part;
}

/// The part of a filled shape within a rectangle.
QPolygonF within(const QPolygonF& shape, const QRectF& rect) {
    QPolygonF part = onOneSide(shape, [&rect](const QPointF& p) { return p.x() - rect.left(); });
    part = onOneSide(part, [&rect](const QPointF& p) { return rect.right() - p.x(); });
    part = onOneSide(part, [&rect](const QPointF& p) { return p.y() - rect.top(); });
    return onOneSide(part, [&rect](const QPointF& p) { return rect.bottom() - p.y(); });
}

double toDegrees(double radians) { return radians * 180 / std::numbers::pi; }

QPen outlinePen(Colour colour) { return {toQColor(colour), 1}; }

Qt::PenStyle penStyle(std::int32_t style) {
    switch (style) {
        case 1:
            return Qt::DashLine;
        case 2:
            return Qt::DotLine;
        case 3:
            return Qt::DashDotLine;
        case 4:
            return Qt::DashDotDotLine;
        case 5:
            return Qt::NoPen;
        default:
            return Qt::SolidLine;
    }
}

/// The text in the characters that its font needs.
QString shownLine(const std::string& text, const std::string& face) {
    const std::string_view visible = std::string_view(text).substr(0, longestText);
    return needsSymbols(face) ? symbolText(visible) : shown(visible);
}

}  // namespace

QColor toQColor(Colour colour) {
    const Colour solid = solidColour(colour);
    return {static_cast<int>(redOf(solid)), static_cast<int>(greenOf(solid)),
            static_cast<int>(blueOf(solid))};
}

Colour fromQColor(const QColor& colour) {
    return rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
               static_cast<unsigned>(colour.blue()));
}

QImage makePageImage(int width, int height, double deviceScale) {
    QImage image(static_cast<int>(std::lround(width * deviceScale)),
                 static_cast<int>(std::lround(height * deviceScale)), QImage::Format_RGB32);
    const int dots = static_cast<int>(std::lround(layoutDotsPerInch * 1000 / millimetresPerInch));
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    image.setDevicePixelRatio(deviceScale);
    image.fill(Qt::white);
    return image;
}

QtCanvas::QtCanvas(QPaintDevice& device, double width, double height)
    : own_(&device), painter_(own_), width_(width), height_(height) {
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                            QPainter::SmoothPixmapTransform);
}

QtCanvas::QtCanvas(QPainter& painter, double width, double height)
    : painter_(painter), width_(width), height_(height) {
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                            QPainter::SmoothPixmapTransform);
}

void QtCanvas::clear(Colour colour) {
    painter_.fillRect(QRectF(0, 0, width_, height_), toQColor(colour));
    position_ = {};
}

void QtCanvas::blit(const PicturePointer& picture, const Rect& target) {
    painter_.drawImage(toQRectF(target), imageOf(*picture));
}

void QtCanvas::blitMasked(const PicturePointer& picture, const PicturePointer& mask, const Rect& target) {
    QImage shownPart = imageOf(*picture).convertToFormat(QImage::Format_ARGB32);
    QImage opaque = imageOf(*mask).scaled(shownPart.size()).convertToFormat(QImage::Format_Grayscale8);
    opaque.invertPixels();
    shownPart.setAlphaChannel(opaque);
    painter_.drawImage(toQRectF(target), shownPart);
}

void QtCanvas::fillRectangle(const Rect& rectangle, Colour colour) {
    painter_.fillRect(toQRectF(rectangle), toQColor(colour));
}

void QtCanvas::circle(Point centre, double radius, Colour colour) {
    painter_.setPen(outlinePen(colour));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(around(centre, radius));
}

void QtCanvas::disc(Point centre, double radius, Colour fill, Colour outline) {
    const QRectF bounds = around(centre, radius);
    painter_.setPen(outlinePen(outline));
    painter_.setBrush(toQColor(fill));
    if (isNear(bounds)) return painter_.drawEllipse(bounds);
    QPainterPath path;
    path.addEllipse(bounds);
    drawFar(path);
}

void QtCanvas::line(Point from, Point to, const LineStyle& style) {
    QPen pen(toQColor(style.colour), std::max(1, style.width), penStyle(style.style));
    pen.setCapStyle(Qt::FlatCap);
    if (style.phase > 0) pen.setDashOffset(style.phase / std::max(1, style.width));
    painter_.setPen(pen);
    painter_.drawLine(toQPointF(from), toQPointF(to));
}

void QtCanvas::pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) {
    if (!(radius > 0)) return;
    const double sweep = end < start ? end + 2 * std::numbers::pi - start : end - start;
    QPainterPath path(toQPointF(centre));
    const QRectF bounds = around(centre, radius);
    path.arcTo(bounds, toDegrees(start), toDegrees(sweep));
    path.closeSubpath();
    painter_.setPen(outlinePen(outline));
    painter_.setBrush(toQColor(fill));
    if (isNear(bounds)) return painter_.drawPath(path);
    drawFar(path);
}

/// Whether the toolkit can fill a shape of these bounds as it is. What is cut off round the page would leave
/// one within that as it is.
bool QtCanvas::isNear(const QRectF& bounds) const {
    const QRectF dots = painter_.deviceTransform().mapRect(bounds);
    return isWithin(bounds, roundPage()) ||
           isWithin(dots, {-farFilled, -farFilled, 2 * farFilled, 2 * farFilled});
}

/// Draws a shape by the painter's pen and brush, but fills it only round the page. A pen of more than one dot
/// is filled as well: it draws what is left of the shape, whose cuts are a page away.
void QtCanvas::drawFar(const QPainterPath& shape) {
    const QPen pen = painter_.pen();
    if (painter_.deviceTransform().mapRect(QRectF(0, 0, 1, 1)).width() > 1) {
        painter_.drawPolygon(within(shape.toFillPolygon(), roundPage()));
        return;
    }
    painter_.setPen(Qt::NoPen);
    painter_.drawPolygon(within(shape.toFillPolygon(), roundPage()));
    painter_.strokePath(shape, pen);
}

QRectF QtCanvas::roundPage() const { return {-width_, -height_, 3 * width_, 3 * height_}; }

void QtCanvas::fillPolygon(const std::vector<Point>& corners, Colour colour) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(corners.size()));
    for (const Point& corner : corners) polygon.append(toQPointF(corner));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(toQColor(colour));
    painter_.drawPolygon(isNear(polygon.boundingRect()) ? polygon : within(polygon, roundPage()));
}

QFont QtCanvas::fontOf(const TextStyle& style) const {
    QFont font(needsSymbols(style.face) ? symbolFace() : shown(style.face));
    // Points refer to 96 dots per inch on the surface, so that a printer's own resolution does not change the
    // layout.
    const double size = std::clamp(style.size, 1.0, 1000.0);
    font.setPointSizeF(size * layoutDotsPerInch / painter_.device()->logicalDpiY());
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setKerning(true);
    return font;
}

void QtCanvas::text(const std::string& text, const TextStyle& style) {
    const QFont font = fontOf(style);
    const QFontMetricsF metrics(font, painter_.device());
    painter_.setFont(font);
    painter_.setPen(toQColor(style.colour));
    painter_.drawText(QPointF(bounded(position_.x), bounded(position_.y) + metrics.ascent()),
                      shownLine(text, style.face));
    position_ = {0, position_.y + metrics.height()};
}

TextSize QtCanvas::measure(const std::string& text, const TextStyle& style) const {
    const QFontMetricsF metrics(fontOf(style), painter_.device());
    return {metrics.horizontalAdvance(shownLine(text, style.face)), metrics.height()};
}

}  // namespace zg
