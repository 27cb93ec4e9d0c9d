#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "graph/render/CanvasRecord.h"

namespace zg {

void PrintTo(const Point& point, std::ostream* out);
void PrintTo(const Rect& rect, std::ostream* out);
void PrintTo(const TextStyle& style, std::ostream* out);
void PrintTo(const LineStyle& style, std::ostream* out);

}  // namespace zg

namespace zg::drawn {

/// The command's kind and values, for messages of failed tests.
std::string describe(const Command& command);

void PrintTo(const Clear& command, std::ostream* out);
void PrintTo(const KeepPicture& command, std::ostream* out);
void PrintTo(const Blit& command, std::ostream* out);
void PrintTo(const BlitMasked& command, std::ostream* out);
void PrintTo(const FillRectangle& command, std::ostream* out);
void PrintTo(const Circle& command, std::ostream* out);
void PrintTo(const Disc& command, std::ostream* out);
void PrintTo(const Line& command, std::ostream* out);
void PrintTo(const Pie& command, std::ostream* out);
void PrintTo(const FillPolygon& command, std::ostream* out);
void PrintTo(const Text& command, std::ostream* out);

}  // namespace zg::drawn

namespace drawn = zg::drawn;

/// Records every drawing command in a list. Its text metrics are fixed: a character is 6 wide at size 8 and
/// scales with the size; a line, even an empty one, is one and a half sizes high.
class RecordingCanvas : public zg::Canvas {
 public:
    explicit RecordingCanvas(double width = 300, double height = 300) : width_(width), height_(height) {}

    std::vector<drawn::Command> commands;

    /// The commands of one kind, in order.
    template <typename T>
    std::vector<T> all() const {
        std::vector<T> found;
        for (const drawn::Command& command : commands)
            if (const T* one = std::get_if<T>(&command)) found.push_back(*one);
        return found;
    }

    /// The written texts, in order.
    std::vector<std::string> texts() const;

    /// The first text with these characters; fails the test if there is none.
    drawn::Text textReading(const std::string& text) const;

    /// The kinds of all commands in order, with the length of runs of one kind: "Clear", "Line x64".
    std::vector<std::string> kinds() const;

    /// Changes the surface's size.
    void resize(double width, double height);

    double width() const override { return width_; }
    double height() const override { return height_; }
    void clear(zg::Colour colour) override;
    void keepPicture() override;
    void blit(const zg::PicturePointer& picture, const zg::Rect& target) override;
    void blitMasked(const zg::PicturePointer& picture, const zg::PicturePointer& mask,
                    const zg::Rect& target) override;
    void fillRectangle(const zg::Rect& rectangle, zg::Colour colour) override;
    void circle(zg::Point centre, double radius, zg::Colour colour) override;
    void disc(zg::Point centre, double radius, zg::Colour fill, zg::Colour outline) override;
    void line(zg::Point from, zg::Point to, const zg::LineStyle& style) override;
    void pie(zg::Point centre, double radius, double start, double end, zg::Colour fill,
             zg::Colour outline) override;
    void fillPolygon(const std::vector<zg::Point>& corners, zg::Colour colour) override;
    void setTextPosition(zg::Point position) override { position_ = position; }
    zg::Point textPosition() const override { return position_; }
    void text(const std::string& text, const zg::TextStyle& style) override;
    zg::TextSize measure(const std::string& text, const zg::TextStyle& style) const override;

 private:
    double width_;
    double height_;
    zg::Point position_;
};

/// A picture that has only a size.
class BlankPicture : public zg::Picture {
 public:
    BlankPicture(int width, int height) : width_(width), height_(height) {}
    int width() const override { return width_; }
    int height() const override { return height_; }

 private:
    int width_;
    int height_;
};
