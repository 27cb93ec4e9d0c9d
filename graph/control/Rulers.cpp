#include "graph/control/Rulers.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numbers.h"

namespace zg {

namespace {

constexpr Colour bandColour = rgb(172, 168, 153);
constexpr Colour outlineGrey = rgb(128, 128, 128);
constexpr double bandWidth = 2;
constexpr double stripInset = 5;    // of the page's white strip, across the ruler
constexpr double outlineInset = 4;  // of the grey line around it
constexpr double numberedMark = 4;
constexpr double shortMark = 2;
constexpr double readableGap = 34;  // pixels per number
constexpr double smallestGap = 4;
constexpr double textPlacing = 0.8;
constexpr double pixelStep = 10;
constexpr int pixelsNumberedEvery = 5;
const TextStyle numberStyle{"Arial", 6, false, false, black};

/// The smallest of 1, 2, 5, 10, 20, ... steps that gives at least this many pixels.
int stepsPer(double pixelsAStep, double gap) {
    constexpr std::array<int, 3> mantissas = {1, 2, 5};
    for (int decade = 1; decade <= 1000000; decade *= 10)
        for (const int mantissa : mantissas)
            if (mantissa * decade * pixelsAStep >= gap) return mantissa * decade;
    return 0;
}

std::vector<RulerMark> unitMarks(const RulerView& view) {
    const double step = static_cast<double>(view.unit) * view.unitLength;
    std::vector<RulerMark> marks;
    if (!(step > 0)) return marks;
    const int shortEvery = stepsPer(step, smallestGap);
    const int numberEvery = stepsPer(step, readableGap);
    if (shortEvery == 0 || numberEvery == 0) return marks;
    const auto first =
        static_cast<std::int64_t>(std::ceil((view.pageStart - view.centre) / step / shortEvery));
    const auto last = static_cast<std::int64_t>(
        std::floor((view.pageStart + view.pageLength - view.centre) / step / shortEvery));
    for (std::int64_t i = first; i <= last; ++i) {
        const std::int64_t steps = i * shortEvery;
        RulerMark mark{view.centre + static_cast<double>(steps) * step, {}};
        if (steps % numberEvery == 0)
            mark.text =
                singleText(toSingle(static_cast<double>(std::abs(steps)) * static_cast<double>(view.unit)));
        marks.push_back(std::move(mark));
    }
    return marks;
}

std::vector<RulerMark> pixelMarks(const RulerView& view) {
    std::vector<RulerMark> marks;
    const int count = static_cast<int>(std::floor(view.pageLength / pixelStep));
    for (int i = 0; i <= count; ++i) {
        RulerMark mark{view.pageStart + i * pixelStep, {}};
        if (i % pixelsNumberedEvery == 0) mark.text = doubleText(i * pixelStep);
        marks.push_back(std::move(mark));
    }
    return marks;
}

/// A rectangle in coordinates along and across the ruler.
Rect onRuler(const RulerView& view, double from, double to, double nearEdge, double farEdge) {
    if (view.horizontal) return {from, nearEdge, to, farEdge};
    return {nearEdge, from, farEdge, to};
}

void paintMark(Canvas& canvas, const RulerView& view, const RulerMark& mark) {
    const bool numbered = !mark.text.empty();
    const double at = std::round(mark.position);
    const double inner = view.thickness - bandWidth;
    canvas.fillRectangle(onRuler(view, at, at + 1, inner - (numbered ? numberedMark : shortMark), inner),
                         black);
    if (!numbered) return;
    const TextSize size = canvas.measure(mark.text, numberStyle);
    if (view.horizontal)
        canvas.setTextPosition({at - textPlacing * size.width / 2, stripInset});
    else
        canvas.setTextPosition(
            {std::min(stripInset + 1, inner - numberedMark - size.width), at - textPlacing * size.height});
    canvas.text(mark.text, numberStyle);
}

}  // namespace

std::vector<RulerMark> rulerMarks(const RulerView& view) {
    return view.mode == 1 ? unitMarks(view) : pixelMarks(view);
}

void paintRuler(Canvas& canvas, const RulerView& view) {
    canvas.clear(buttonFaceColour);
    const double pageEnd = view.pageStart + view.pageLength;
    canvas.fillRectangle(
        onRuler(view, view.pageStart - 1, pageEnd + 1, outlineInset, view.thickness - outlineInset),
        outlineGrey);
    canvas.fillRectangle(onRuler(view, view.pageStart, pageEnd, stripInset, view.thickness - stripInset),
                         white);
    canvas.fillRectangle(onRuler(view, 0, view.length, view.thickness - bandWidth, view.thickness),
                         bandColour);
    for (const RulerMark& mark : rulerMarks(view))
        if (mark.position >= -readableGap && mark.position <= view.length + readableGap)
            paintMark(canvas, view, mark);
}

void paintRulerCorner(Canvas& canvas) {
    canvas.clear(buttonFaceColour);
    const double right = canvas.width() - bandWidth;
    const double bottom = canvas.height() - bandWidth;
    canvas.fillRectangle({right, 0, canvas.width(), canvas.height()}, bandColour);
    canvas.fillRectangle({0, bottom, canvas.width(), canvas.height()}, bandColour);
    canvas.line({4, bottom / 2}, {right - 4, bottom / 2}, {outlineGrey, 1, 0});
    canvas.line({right / 2, 4}, {right / 2, bottom - 4}, {outlineGrey, 1, 0});
}

}  // namespace zg
