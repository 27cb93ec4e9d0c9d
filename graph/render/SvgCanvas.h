#pragma once

// A drawing as SVG of our own: groups with the names of the page's parts, shapes that say in words what they
// show, and texts that stay texts. It reads the same in browsers and in drawing programs, since it uses
// attributes alone: no styles, scripts, fonts or pictures from elsewhere.

#include <string>
#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

/// Collects the drawing. Pictures are left out: the pages that are written so have none.
class SvgCanvas : public Canvas {
 public:
    /// A page of so many 96ths of an inch. Texts are measured as on the other canvas, which has to outlive
    /// this one.
    SvgCanvas(double width, double height, const Canvas& metrics);

    /// The document with a title and a description for readers who do not see it, both UTF-8. The name (ASCII
    /// letters and digits) keeps several drawings of one page apart. Call it once, when all is drawn.
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
    std::string strokes_;      ///< path of the lines under way, all of one look
    std::string strokesLook_;  ///< its attributes
    std::string kind_;         ///< of the next shape
    std::string words_;
};

/// Text as the content or a quoted attribute of XML; what XML cannot hold is left out. Takes and gives UTF-8.
std::string xmlText(const std::string& utf8);

/// A measure with six digits at most, two of them decimals.
std::string svgNumber(double value);

/// "#ff8000", or "#f80" where that says the same; a colour of the desktop is made solid.
std::string svgColour(Colour colour);

}  // namespace zg
