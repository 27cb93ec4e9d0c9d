#pragma once

#include "graph/render/Canvas.h"

namespace zg {

/// A part of another canvas as a canvas of its own, scaled: its unit is this many units of the other, also
/// for texts. Clearing fills only the part.
class PartCanvas : public Canvas {
 public:
    PartCanvas(Canvas& canvas, Point corner, double width, double height, double scale)
        : canvas_(canvas), corner_(corner), width_(width), height_(height), scale_(scale) {}

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
    void beginGroup(const char* name) override { canvas_.beginGroup(name); }
    void endGroup() override { canvas_.endGroup(); }
    bool keepsWords() const override { return canvas_.keepsWords(); }
    void describe(const std::string& kind, const std::string& words) override {
        canvas_.describe(kind, words);
    }

 private:
    Point there(Point point) const { return {corner_.x + scale_ * point.x, corner_.y + scale_ * point.y}; }
    Rect there(const Rect& rect) const;
    TextStyle there(TextStyle style) const;

    Canvas& canvas_;
    Point corner_;
    double width_;
    double height_;
    double scale_;
    Point position_;
};

}  // namespace zg
