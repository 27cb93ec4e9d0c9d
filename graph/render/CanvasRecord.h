#pragma once

// The painted content as a list of commands, so that it can be painted again on another canvas: a print is
// sharp and equals the page, whatever settings have changed since.

#include <string>
#include <variant>
#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

/// The operations of a canvas as plain data.
namespace drawn {

struct Clear {
    Colour colour;
    bool operator==(const Clear&) const = default;
};
struct KeepPicture {
    bool operator==(const KeepPicture&) const = default;
};
struct Blit {
    PicturePointer picture;
    Rect target;
    bool operator==(const Blit&) const = default;
};
struct BlitMasked {
    PicturePointer picture;
    PicturePointer mask;
    Rect target;
    bool operator==(const BlitMasked&) const = default;
};
struct FillRectangle {
    Rect rectangle;
    Colour colour;
    bool operator==(const FillRectangle&) const = default;
};
struct Circle {
    Point centre;
    double radius;
    Colour colour;
    bool operator==(const Circle&) const = default;
};
struct Disc {
    Point centre;
    double radius;
    Colour fill;
    Colour outline;
    bool operator==(const Disc&) const = default;
};
struct Line {
    Point from;
    Point to;
    LineStyle style;
    bool operator==(const Line&) const = default;
};
struct Pie {
    Point centre;
    double radius;
    double start;
    double end;
    Colour fill;
    Colour outline;
    bool operator==(const Pie&) const = default;
};
struct FillPolygon {
    std::vector<Point> corners;
    Colour colour;
    bool operator==(const FillPolygon&) const = default;
};
/// A text with the position at which it was written.
struct Text {
    Point at;
    std::string text;
    TextStyle style;
    bool operator==(const Text&) const = default;
};

using Command = std::variant<Clear, KeepPicture, Blit, BlitMasked, FillRectangle, Circle, Disc, Line, Pie,
                             FillPolygon, Text>;

/// Executes the command on a canvas.
void replay(const Command& command, Canvas& canvas);

}  // namespace drawn

/// The commands that painted the content of a surface. The list is bounded: if more was painted, it is
/// incomplete, and the surface's pixels have to be used instead.
class CanvasRecord {
 public:
    /// A rose has some hundred commands, a smooth curve some hundred more.
    static constexpr std::size_t mostCommands = 100'000;

    /// Clearing the whole surface discards the earlier commands.
    void add(drawn::Command command);

    /// Marks the present content as that to which restore returns.
    void keep();
    void restore();

    /// The surface is blank.
    void reset();

    bool isComplete() const { return !overflown_; }
    const std::vector<drawn::Command>& commands() const { return commands_; }

    void replay(Canvas& canvas) const;
    /// Only what restore would remove.
    void replayAfterKept(Canvas& canvas) const;

 private:
    std::vector<drawn::Command> commands_;
    std::size_t kept_ = 0;  ///< number of commands that remain after restore
    bool overflown_ = false;
    bool keptOverflown_ = false;
};

/// Paints on another canvas and records the commands, without groups and words.
class RecordedCanvas : public Canvas {
 public:
    RecordedCanvas(Canvas& canvas, CanvasRecord& record) : canvas_(canvas), record_(record) {}

    double width() const override { return canvas_.width(); }
    double height() const override { return canvas_.height(); }
    void clear(Colour colour) override;
    void keepPicture() override;
    void blit(const PicturePointer& picture, const Rect& target) override;
    void blitMasked(const PicturePointer& picture, const PicturePointer& mask, const Rect& target) override;
    void fillRectangle(const Rect& rectangle, Colour colour) override;
    void circle(Point centre, double radius, Colour colour) override;
    void disc(Point centre, double radius, Colour fill, Colour outline) override;
    void line(Point from, Point to, const LineStyle& style) override;
    void pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) override;
    void fillPolygon(const std::vector<Point>& corners, Colour colour) override;
    void setTextPosition(Point position) override { canvas_.setTextPosition(position); }
    Point textPosition() const override { return canvas_.textPosition(); }
    void text(const std::string& text, const TextStyle& style) override;
    TextSize measure(const std::string& text, const TextStyle& style) const override {
        return canvas_.measure(text, style);
    }
    void beginGroup(const char* name) override { canvas_.beginGroup(name); }
    void endGroup() override { canvas_.endGroup(); }
    bool keepsWords() const override { return canvas_.keepsWords(); }
    void describe(const std::string& kind, const std::string& words) override {
        canvas_.describe(kind, words);
    }

 private:
    Canvas& canvas_;
    CanvasRecord& record_;
};

}  // namespace zg
