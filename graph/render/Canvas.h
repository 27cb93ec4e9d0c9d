#pragma once

// The interface for all painting: screen, bitmap, vector file and printer are adapters of it, and tests
// record it.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/Style.h"

namespace zg {

/// A decoded picture; adapters can read and paint their own kind. Sizes in pixels.
class Picture {
 public:
    virtual ~Picture() = default;
    virtual int width() const = 0;
    virtual int height() const = 0;
};
using PicturePointer = std::shared_ptr<const Picture>;

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// Left and top edge included; coordinates grow to the right and downwards.
struct Rect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    bool operator==(const Rect&) const = default;
};

struct TextSize {
    double width = 0;
    double height = 0;
};

/// Font and colour of a text. Sizes are points at 96 dots per inch, whatever the screen.
struct TextStyle {
    std::string face;
    double size = 8;
    bool bold = false;
    bool italic = false;
    Colour colour = black;
    bool operator==(const TextStyle&) const = default;
};

/// Line styles by their number: 0 solid, 1 dash, 2 dot, 3 dash dot, 4 dash dot dot, 5 none.
struct LineStyle {
    Colour colour = black;
    std::int32_t width = 1;
    std::int32_t style = 0;
    double phase = 0;  ///< length of the preceding line, so that dashes continue across the join
    bool operator==(const LineStyle&) const = default;
};

/// Measures are scale units of the surface; one unit is a pixel of the page at its size. The text position
/// starts at (0, 0) and, after each text, is at x = 0 one line of that text's style further down.
class Canvas {
 public:
    virtual ~Canvas() = default;

    virtual double width() const = 0;
    virtual double height() const = 0;

    /// Fills the surface and discards its persistent picture.
    virtual void clear(Colour colour) = 0;

    /// The content of the surface becomes its persistent picture, to which transient drawing is reset.
    virtual void keepPicture() = 0;

    /// Copies the whole picture into the target, stretched to it. Pictures are shared, so that a canvas may
    /// keep them.
    virtual void blit(const PicturePointer& picture, const Rect& target) = 0;

    /// Copies the picture only where the mask is black.
    virtual void blitMasked(const PicturePointer& picture, const PicturePointer& mask,
                            const Rect& target) = 0;

    /// Interior and edge in one colour.
    virtual void fillRectangle(const Rect& rectangle, Colour colour) = 0;

    /// Outline only.
    virtual void circle(Point centre, double radius, Colour colour) = 0;

    virtual void disc(Point centre, double radius, Colour fill, Colour outline) = 0;

    virtual void line(Point from, Point to, const LineStyle& style) = 0;

    /// A sector counterclockwise from start to end, angles in radians counterclockwise from east with y up,
    /// closed by both radii. A start greater than the end crosses east.
    virtual void pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) = 0;

    /// Interior only; the outline is closed automatically.
    virtual void fillPolygon(const std::vector<Point>& corners, Colour colour) = 0;

    virtual void setTextPosition(Point position) = 0;
    virtual Point textPosition() const = 0;

    /// Writes at the text position (the text's top left corner) and advances it.
    virtual void text(const std::string& text, const TextStyle& style) = 0;

    virtual TextSize measure(const std::string& text, const TextStyle& style) const = 0;

    /// What is drawn until the matching endGroup belongs together, under a plain name such as "rings". Groups
    /// nest. A canvas of pixels need not know of them.
    virtual void beginGroup(const char*) {}
    virtual void endGroup() {}

    /// The canvas keeps what shapes say in words; for others nobody need make them.
    virtual bool keepsWords() const { return false; }

    /// What the next shape is, a plain name such as "class3", and what it says to a reader, UTF-8.
    virtual void describe(const std::string& /*kind*/, const std::string& /*words*/) {}
};

/// A group of a canvas, as long as this lives.
class CanvasGroup {
 public:
    CanvasGroup(Canvas& canvas, const char* name) : canvas_(canvas) { canvas_.beginGroup(name); }
    ~CanvasGroup() { canvas_.endGroup(); }
    CanvasGroup(const CanvasGroup&) = delete;
    CanvasGroup& operator=(const CanvasGroup&) = delete;

 private:
    Canvas& canvas_;
};

}  // namespace zg
