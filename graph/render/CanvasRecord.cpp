#include "graph/render/CanvasRecord.h"

#include <utility>

namespace zg {

namespace drawn {

namespace {

struct Replay {
    Canvas& canvas;

    void operator()(const Clear& c) const { canvas.clear(c.colour); }
    void operator()(const KeepPicture&) const { canvas.keepPicture(); }
    void operator()(const Blit& c) const { canvas.blit(c.picture, c.target); }
    void operator()(const BlitMasked& c) const { canvas.blitMasked(c.picture, c.mask, c.target); }
    void operator()(const FillRectangle& c) const { canvas.fillRectangle(c.rectangle, c.colour); }
    void operator()(const Circle& c) const { canvas.circle(c.centre, c.radius, c.colour); }
    void operator()(const Disc& c) const { canvas.disc(c.centre, c.radius, c.fill, c.outline); }
    void operator()(const Line& c) const { canvas.line(c.from, c.to, c.style); }
    void operator()(const Pie& c) const { canvas.pie(c.centre, c.radius, c.start, c.end, c.fill, c.outline); }
    void operator()(const FillPolygon& c) const { canvas.fillPolygon(c.corners, c.colour); }
    void operator()(const Text& c) const {
        canvas.setTextPosition(c.at);
        canvas.text(c.text, c.style);
    }
};

}  // namespace

void replay(const Command& command, Canvas& canvas) { std::visit(Replay{canvas}, command); }

}  // namespace drawn

namespace {

/// Frees a list that one page needed and the next one will not.
constexpr std::size_t usualCommands = 4096;

}  // namespace

void CanvasRecord::add(drawn::Command command) {
    if (std::holds_alternative<drawn::Clear>(command)) reset();
    if (commands_.size() < mostCommands)
        commands_.push_back(std::move(command));
    else
        overflown_ = true;
}

void CanvasRecord::keep() {
    kept_ = commands_.size();
    keptOverflown_ = overflown_;
}

void CanvasRecord::restore() {
    commands_.resize(kept_);
    overflown_ = keptOverflown_;
}

void CanvasRecord::reset() {
    commands_.clear();
    if (commands_.capacity() > usualCommands) commands_.shrink_to_fit();
    kept_ = 0;
    overflown_ = keptOverflown_ = false;
}

void CanvasRecord::replay(Canvas& canvas) const {
    for (const drawn::Command& command : commands_) drawn::replay(command, canvas);
}

void CanvasRecord::replayAfterKept(Canvas& canvas) const {
    for (std::size_t i = kept_; i < commands_.size(); ++i) drawn::replay(commands_[i], canvas);
}

void RecordedCanvas::clear(Colour colour) {
    canvas_.clear(colour);
    record_.add(drawn::Clear{colour});
}

void RecordedCanvas::keepPicture() {
    canvas_.keepPicture();
    record_.add(drawn::KeepPicture{});
}

void RecordedCanvas::blit(const PicturePointer& picture, const Rect& target) {
    canvas_.blit(picture, target);
    record_.add(drawn::Blit{picture, target});
}

void RecordedCanvas::blitMasked(const PicturePointer& picture, const PicturePointer& mask,
                                const Rect& target) {
    canvas_.blitMasked(picture, mask, target);
    record_.add(drawn::BlitMasked{picture, mask, target});
}

void RecordedCanvas::fillRectangle(const Rect& rectangle, Colour colour) {
    canvas_.fillRectangle(rectangle, colour);
    record_.add(drawn::FillRectangle{rectangle, colour});
}

void RecordedCanvas::circle(Point centre, double radius, Colour colour) {
    canvas_.circle(centre, radius, colour);
    record_.add(drawn::Circle{centre, radius, colour});
}

void RecordedCanvas::disc(Point centre, double radius, Colour fill, Colour outline) {
    canvas_.disc(centre, radius, fill, outline);
    record_.add(drawn::Disc{centre, radius, fill, outline});
}

void RecordedCanvas::line(Point from, Point to, const LineStyle& style) {
    canvas_.line(from, to, style);
    record_.add(drawn::Line{from, to, style});
}

void RecordedCanvas::pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) {
    canvas_.pie(centre, radius, start, end, fill, outline);
    record_.add(drawn::Pie{centre, radius, start, end, fill, outline});
}

void RecordedCanvas::fillPolygon(const std::vector<Point>& corners, Colour colour) {
    canvas_.fillPolygon(corners, colour);
    record_.add(drawn::FillPolygon{corners, colour});
}

void RecordedCanvas::text(const std::string& text, const TextStyle& style) {
    const Point at = canvas_.textPosition();
    canvas_.text(text, style);
    record_.add(drawn::Text{at, text, style});
}

}  // namespace zg
