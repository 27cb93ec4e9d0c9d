#include "tests/support/RecordingCanvas.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zg {

void PrintTo(const Point& point, std::ostream* out) { *out << "(" << point.x << ", " << point.y << ")"; }

void PrintTo(const Rect& rect, std::ostream* out) {
    *out << "(" << rect.left << ", " << rect.top << ")-(" << rect.right << ", " << rect.bottom << ")";
}

void PrintTo(const TextStyle& style, std::ostream* out) {
    *out << style.face << " " << style.size << (style.bold ? " bold" : "") << (style.italic ? " italic" : "")
         << " colour " << style.colour;
}

void PrintTo(const LineStyle& style, std::ostream* out) {
    *out << "colour " << style.colour << " width " << style.width << " style " << style.style;
}

}  // namespace zg

namespace zg::drawn {

namespace {

template <typename T>
std::string shown(const T& value) {
    return ::testing::PrintToString(value);
}

constexpr const char* kindNames[] = {"Clear", "KeepPicture", "Blit", "BlitMasked",  "FillRectangle", "Circle",
                                     "Disc",  "Line",        "Pie",  "FillPolygon", "Text"};
static_assert(std::size(kindNames) == std::variant_size_v<Command>);

std::string kindOf(const Command& command) { return kindNames[command.index()]; }

}  // namespace

void PrintTo(const Clear& command, std::ostream* out) { *out << "Clear " << command.colour; }

void PrintTo(const KeepPicture&, std::ostream* out) { *out << "KeepPicture"; }

void PrintTo(const Blit& command, std::ostream* out) { *out << "Blit " << shown(command.target); }

void PrintTo(const BlitMasked& command, std::ostream* out) { *out << "BlitMasked " << shown(command.target); }

void PrintTo(const FillRectangle& command, std::ostream* out) {
    *out << "FillRectangle " << shown(command.rectangle) << " colour " << command.colour;
}

void PrintTo(const Circle& command, std::ostream* out) {
    *out << "Circle " << shown(command.centre) << " radius " << command.radius << " colour "
         << command.colour;
}

void PrintTo(const Disc& command, std::ostream* out) {
    *out << "Disc " << shown(command.centre) << " radius " << command.radius << " fill " << command.fill
         << " outline " << command.outline;
}

void PrintTo(const Line& command, std::ostream* out) {
    *out << "Line " << shown(command.from) << "-" << shown(command.to) << " " << shown(command.style);
}

void PrintTo(const Pie& command, std::ostream* out) {
    *out << "Pie " << shown(command.centre) << " radius " << command.radius << " from " << command.start
         << " to " << command.end << " fill " << command.fill << " outline " << command.outline;
}

void PrintTo(const FillPolygon& command, std::ostream* out) {
    *out << "FillPolygon " << shown(command.corners) << " colour " << command.colour;
}

void PrintTo(const Text& command, std::ostream* out) {
    *out << "Text " << shown(command.at) << " \"" << command.text << "\" " << shown(command.style);
}

std::string describe(const Command& command) {
    std::ostringstream out;
    std::visit([&out](const auto& one) { PrintTo(one, &out); }, command);
    return out.str();
}

}  // namespace zg::drawn

std::vector<std::string> RecordingCanvas::texts() const {
    std::vector<std::string> found;
    for (const drawn::Text& text : all<drawn::Text>()) found.push_back(text.text);
    return found;
}

drawn::Text RecordingCanvas::textReading(const std::string& text) const {
    for (const drawn::Text& one : all<drawn::Text>())
        if (one.text == text) return one;
    ADD_FAILURE() << "no text reads \"" << text << "\" among " << ::testing::PrintToString(texts());
    return {};
}

std::vector<std::string> RecordingCanvas::kinds() const {
    std::vector<std::string> kinds;
    for (std::size_t i = 0; i < commands.size();) {
        std::size_t end = i + 1;
        while (end < commands.size() && commands[end].index() == commands[i].index()) ++end;
        std::string kind = drawn::kindOf(commands[i]);
        if (end - i > 1) kind += " x" + std::to_string(end - i);
        kinds.push_back(std::move(kind));
        i = end;
    }
    return kinds;
}

void RecordingCanvas::resize(double width, double height) {
    width_ = width;
    height_ = height;
}

void RecordingCanvas::clear(zg::Colour colour) { commands.push_back(drawn::Clear{colour}); }

void RecordingCanvas::keepPicture() { commands.push_back(drawn::KeepPicture{}); }

void RecordingCanvas::blit(const zg::PicturePointer& picture, const zg::Rect& target) {
    commands.push_back(drawn::Blit{picture, target});
}

void RecordingCanvas::blitMasked(const zg::PicturePointer& picture, const zg::PicturePointer& mask,
                                 const zg::Rect& target) {
    commands.push_back(drawn::BlitMasked{picture, mask, target});
}

void RecordingCanvas::fillRectangle(const zg::Rect& rectangle, zg::Colour colour) {
    commands.push_back(drawn::FillRectangle{rectangle, colour});
}

void RecordingCanvas::circle(zg::Point centre, double radius, zg::Colour colour) {
    commands.push_back(drawn::Circle{centre, radius, colour});
}

void RecordingCanvas::disc(zg::Point centre, double radius, zg::Colour fill, zg::Colour outline) {
    commands.push_back(drawn::Disc{centre, radius, fill, outline});
}

void RecordingCanvas::line(zg::Point from, zg::Point to, const zg::LineStyle& style) {
    commands.push_back(drawn::Line{from, to, style});
}

void RecordingCanvas::pie(zg::Point centre, double radius, double start, double end, zg::Colour fill,
                          zg::Colour outline) {
    commands.push_back(drawn::Pie{centre, radius, start, end, fill, outline});
}

void RecordingCanvas::fillPolygon(const std::vector<zg::Point>& corners, zg::Colour colour) {
    commands.push_back(drawn::FillPolygon{corners, colour});
}

void RecordingCanvas::text(const std::string& text, const zg::TextStyle& style) {
    commands.push_back(drawn::Text{position_, text, style});
    position_ = {0, position_.y + measure(text, style).height};
}

zg::TextSize RecordingCanvas::measure(const std::string& text, const zg::TextStyle& style) const {
    return {6 * static_cast<double>(text.size()) * style.size / 8, 1.5 * style.size};
}
