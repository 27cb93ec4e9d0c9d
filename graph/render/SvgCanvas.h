#pragma once

// Writes a drawing as SVG without the toolkit: groups with the names of the page's parts, shapes with
// descriptions, and texts that remain texts. It looks the same in browsers and in drawing programs, because
// it uses only attributes: no styles, scripts, fonts or external pictures.

#include <string>
#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

/// Collects the drawing. Pictures are left out: pages written this way have none.
class SvgCanvas : public Canvas {
 public:
    /// A page of this many 96ths of an inch. Texts are measured on the other canvas, which must outlive this
    /// one.
    SvgCanvas(double width, double height, const Canvas& metrics);

    /// The document with a title and a description for readers who cannot see it, both UTF-8. The name (ASCII
    /// letters and digits) distinguishes several drawings on one page. Call it once, after drawing.
    std::string document(const std::string& title, const std::string& description,
                         const std::string& name = "rose");

    double width() const override { return width_; }
    double height() const override { return height_; }
    void clear(Colour colour) override;
    void keepPicture() override {}
    void blit(const PicturePointer&, const Rect&) override {}
    void blitMasked(const PicturePointer&, const PicturePointer&, const Rect&) override {}
    void fillRectangle(const Rect& rectangle, Colour colour) override;
    void circle(Point centre, double radius, Colour colour) override;
    void disc(Point centre, double radius, Colour fill, Colour outline) override;
    void line(Point from, Point to, const LineStyle& style) override;
    void pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) override;
    void fillPolygon(const std::vector<Point>& corners, Colour colour) override;
    void setTextPosition(Point position) override { position_ = position; }
    Point textPosition() const override { return position_; }
    void text(const std::string& text, const TextStyle& style) override;
    TextSize measure(const std::string& text, const TextStyle& style) const override {
        return metrics_.measure(text, style);
    }
    void beginGroup(const char* name) override;
    void endGroup() override;
    bool keepsWords() const override { return true; }
    void describe(const std::string& kind, const std::string& words) override;

 private:
    void shape(const char* element, const std::string& attributes);
    void endStrokes();

    double width_;
    double height_;
    const Canvas& metrics_;
    Point position_;
    std::string body_;
    std::string strokes_;      ///< path of the pending lines, all of one look
    std::string strokesLook_;  ///< its attributes
    std::string kind_;         ///< of the next shape
    std::string words_;
};

/// Text as the content or a quoted attribute of XML; characters that XML cannot represent are left out. Takes
/// and returns UTF-8.
std::string xmlText(const std::string& utf8);

/// A measure with at most six digits, two of them decimals.
std::string svgNumber(double value);

/// "#ff8000", or "#f80" if that is the same; a colour of the desktop becomes solid.
std::string svgColour(Colour colour);

}  // namespace zg
