#pragma once

#include <QFont>
#include <QPainter>

#include "graph/render/Canvas.h"

namespace zg {

/// Paints on any device of the toolkit: image, vector file, printer. Drawing is antialiased; the interior of
/// a filled shape has exactly its colour.
class QtCanvas : public Canvas {
 public:
    /// A surface of this many scale units, from the device's top left corner.
    QtCanvas(QPaintDevice& device, double width, double height);

    /// The same, using a prepared painter that outlives the canvas.
    QtCanvas(QPainter& painter, double width, double height);

    double width() const override { return width_; }
    double height() const override { return height_; }

    void clear(Colour colour) override;
    void keepPicture() override {}
    void blit(const PicturePointer& picture, const Rect& target) override;
    void blitMasked(const PicturePointer& picture, const PicturePointer& mask, const Rect& target) override;
    void fillRectangle(const Rect& rectangle, Colour colour) override;
    void circle(Point centre, double radius, Colour colour) override;
    void disc(Point centre, double radius, Colour fill, Colour outline) override;
    void line(Point from, Point to, const LineStyle& style) override;
    void pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) override;
    void fillPolygon(const std::vector<Point>& corners, Colour colour) override;
    void setTextPosition(Point position) override { position_ = position; }
    Point textPosition() const override { return position_; }
    void text(const std::string& text, const TextStyle& style) override;
    TextSize measure(const std::string& text, const TextStyle& style) const override;

 private:
    bool isNear(const QRectF& bounds) const;
    void drawFar(const QPainterPath& shape);
    QRectF roundPage() const;
    QFont fontOf(const TextStyle& style) const;

    QPainter own_;
    QPainter& painter_;
    double width_;
    double height_;
    Point position_;
};

/// An empty page image of this many pixels; its texts are laid out at 96 dots per inch whatever the screen.
/// Each scale unit has deviceScale pixels per side.
QImage makePageImage(int width, int height, double deviceScale = 1);

}  // namespace zg
