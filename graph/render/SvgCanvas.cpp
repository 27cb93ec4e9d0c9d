#include "graph/render/SvgCanvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "base/Encoding.h"
#include "base/Numbers.h"

namespace zg {

namespace {

constexpr double farthestMeasure = 999999;  // beyond any page, with six digits
constexpr double pixelsPerPoint = 96.0 / 72;
/// Fraction of a line's height above its baseline in fonts such as Arial.
constexpr double ascent = 0.81;
constexpr const char* usualFace = "Arial";
constexpr const char* usualFaces = "Arial,Helvetica,'Liberation Sans',sans-serif";

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string pointText(Point point) { return svgNumber(point.x) + " " + svgNumber(point.y); }

std::string circleText(Point centre, double radius) {
    return attribute("cx", svgNumber(centre.x)) + attribute("cy", svgNumber(centre.y)) +
           attribute("r", svgNumber(radius));
}

/// Dashes and gaps in line widths, as the toolkit draws them.
std::vector<int> dashes(std::int32_t style) {
    switch (style) {
        case 1:
            return {4, 2};
        case 2:
            return {1, 2};
        case 3:
            return {4, 2, 1, 2};
        case 4:
            return {4, 2, 1, 2, 1, 2};
        default:
            return {};
    }
}

std::string strokeLook(const LineStyle& style) {
    const int width = std::max(1, style.width);
    std::string look = attribute("stroke", svgColour(style.colour));
    if (width > 1) look += attribute("stroke-width", std::to_string(width));
    std::string pattern;
    for (const int length : dashes(style.style)) {
        if (!pattern.empty()) pattern += ' ';
        pattern += std::to_string(length * width);
    }
    if (pattern.empty()) return look;
    look += attribute("stroke-dasharray", pattern);
    if (style.phase > 0) look += attribute("stroke-dashoffset", svgNumber(style.phase));
    return look;
}

/// Leading and double blanks would be lost.
bool needsItsBlanks(const std::string& text) {
    return !text.empty() &&
           (text.front() == ' ' || text.back() == ' ' || text.find("  ") != std::string::npos);
}

}  // namespace

std::string xmlText(const std::string& utf8) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const char c = utf8[i];
        if (c == '&')
            text += "&amp;";
        else if (c == '<')
            text += "&lt;";
        else if (c == '>')
            text += "&gt;";
        else if (c == '"')
            text += "&quot;";
        else if (utf8.compare(i, 3, "\xEF\xBF\xBE") == 0 || utf8.compare(i, 3, "\xEF\xBF\xBF") == 0)
            i += 2;
        else if (static_cast<unsigned char>(c) >= ' ' || c == '\t')
            text += c;
    }
    return text;
}

std::string svgNumber(double value) {
    if (std::isnan(value)) return "0";
    const double bounded = std::clamp(value, -farthestMeasure, farthestMeasure);
    const double size = std::fabs(bounded);
    const int decimals = size < 9999.99 ? 2 : (size < 99999.9 ? 1 : 0);
    return doubleText(roundHalfEven(bounded, decimals) + 0.0);  // no negative zero
}

std::string svgColour(Colour colour) {
    constexpr const char* digits = "0123456789abcdef";
    const Colour solid = solidColour(colour);
    std::string full = "#";
    std::string brief = "#";
    for (const unsigned part : {redOf(solid), greenOf(solid), blueOf(solid)}) {
        full += {digits[part >> 4U], digits[part & 15U]};
        brief += digits[part & 15U];
    }
    const bool isBrief = full[1] == full[2] && full[3] == full[4] && full[5] == full[6];
    return isBrief ? brief : full;
}

SvgCanvas::SvgCanvas(double width, double height, const Canvas& metrics)
    : width_(width), height_(height), metrics_(metrics) {}

std::string SvgCanvas::document(const std::string& title, const std::string& description,
                                const std::string& name) {
    endStrokes();
    const std::string wide = svgNumber(width_);
    const std::string high = svgNumber(height_);
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\"";
    svg += attribute("width", wide);
    svg += attribute("height", high);
    svg.append(" viewBox=\"0 0 ").append(wide).append(" ").append(high).append("\" role=\"img\"");
    svg.append(" aria-labelledby=\"").append(name).append("-title ").append(name).append("-words\"");
    svg += attribute("font-family", usualFaces);
    svg.append(">\n<title id=\"").append(name).append("-title\">").append(xmlText(title));
    svg.append("</title>\n<desc id=\"").append(name).append("-words\">").append(xmlText(description));
    return svg.append("</desc>\n").append(body_).append("</svg>\n");
}

void SvgCanvas::shape(const char* element, const std::string& attributes) {
    endStrokes();
    body_ += std::string("<") + element;
    if (!kind_.empty()) body_ += attribute("class", xmlText(kind_));
    body_ += attributes;
    if (words_.empty())
        body_ += "/>\n";
    else
        body_.append("><title>").append(xmlText(words_)).append("</title></").append(element).append(">\n");
    kind_.clear();
    words_.clear();
}

/// Consecutive lines of one look become one path.
void SvgCanvas::endStrokes() {
    if (strokes_.empty()) return;
    body_.append("<path fill=\"none\"").append(strokesLook_).append(attribute("d", strokes_)).append("/>\n");
    strokes_.clear();
}

void SvgCanvas::clear(Colour colour) {
    body_.clear();
    strokes_.clear();
    position_ = {};
    fillRectangle({0, 0, width_, height_}, colour);
}

void SvgCanvas::fillRectangle(const Rect& rectangle, Colour colour) {
    const double left = std::min(rectangle.left, rectangle.right);
    const double top = std::min(rectangle.top, rectangle.bottom);
    shape("rect", attribute("x", svgNumber(left)) + attribute("y", svgNumber(top)) +
                      attribute("width", svgNumber(std::fabs(rectangle.right - rectangle.left))) +
                      attribute("height", svgNumber(std::fabs(rectangle.bottom - rectangle.top))) +
                      attribute("fill", svgColour(colour)));
}

void SvgCanvas::circle(Point centre, double radius, Colour colour) {
    if (!(radius > 0)) return;
    shape("circle", circleText(centre, radius) + " fill=\"none\"" + attribute("stroke", svgColour(colour)));
}

void SvgCanvas::disc(Point centre, double radius, Colour fill, Colour outline) {
    if (!(radius > 0)) return;
    shape("circle", circleText(centre, radius) + attribute("fill", svgColour(fill)) +
                        attribute("stroke", svgColour(outline)));
}

void SvgCanvas::line(Point from, Point to, const LineStyle& style) {
    constexpr std::int32_t none = 5;
    if (style.style == none) return;
    const std::string look = strokeLook(style);
    if (look != strokesLook_) endStrokes();
    strokesLook_ = look;
    strokes_ += 'M';
    strokes_ += pointText(from);
    strokes_ += 'L';
    strokes_ += pointText(to);
}

void SvgCanvas::pie(Point centre, double radius, double start, double end, Colour fill, Colour outline) {
    if (!(radius > 0)) {
        kind_.clear();
        words_.clear();
        return;
    }
    const double sweep = end < start ? end + 2 * std::numbers::pi - start : end - start;
    const auto onArc = [&](double angle) {
        return pointText({centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)});
    };
    const std::string r = svgNumber(radius);
    std::string path(1, 'M');
    for (const std::string& part :
         {pointText(centre), std::string("L"), onArc(start), std::string("A"), r, std::string(" "), r,
          std::string(sweep > std::numbers::pi ? " 0 1 0 " : " 0 0 0 "), onArc(start + sweep)})
        path += part;
    path += 'z';
    shape("path", attribute("fill", svgColour(fill)) + attribute("stroke", svgColour(outline)) +
                      attribute("d", path));
}

void SvgCanvas::fillPolygon(const std::vector<Point>& corners, Colour colour) {
    std::string path;
    for (const Point& corner : corners) {
        path += path.empty() ? 'M' : 'L';
        path += pointText(corner);
    }
    if (!path.empty()) shape("path", attribute("fill", svgColour(colour)) + attribute("d", path + "z"));
}

void SvgCanvas::text(const std::string& text, const TextStyle& style) {
    const double height = measure(text, style).height;
    if (!text.empty()) {
        endStrokes();
        body_ += "<text";
        body_ += attribute("x", svgNumber(position_.x));
        body_ += attribute("y", svgNumber(position_.y + ascent * height));
        body_ += attribute("font-size", svgNumber(style.size * pixelsPerPoint));
        if (style.face != usualFace) {
            std::string faces(1, '\'');
            faces += xmlText(toUtf8(style.face));
            faces += "',";
            faces += usualFaces;
            body_ += attribute("font-family", faces);
        }
        if (style.bold) body_ += " font-weight=\"bold\"";
        if (style.italic) body_ += " font-style=\"italic\"";
        if (style.colour != black) body_ += attribute("fill", svgColour(style.colour));
        if (needsItsBlanks(text)) body_ += " xml:space=\"preserve\"";
        body_ += '>';
        body_ += xmlText(toUtf8(text));
        body_ += "</text>\n";
    }
    position_ = {0, position_.y + height};
}

void SvgCanvas::beginGroup(const char* name) {
    endStrokes();
    body_ += "<g";
    body_ += attribute("class", name);
    body_ += ">\n";
}

void SvgCanvas::endGroup() {
    endStrokes();
    body_ += "</g>\n";
}

void SvgCanvas::describe(const std::string& kind, const std::string& words) {
    kind_ = kind;
    words_ = words;
}

}  // namespace zg
