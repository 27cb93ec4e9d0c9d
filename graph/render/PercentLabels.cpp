#include "graph/render/PercentLabels.h"

#include <algorithm>
#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"

namespace zg {

namespace {

constexpr double labelAngleDegrees = 11.25;

Point labelPlace(const Frame& frame, int unit, const TextSize& previous) {
    const double angle = MathLibrary::Radians(labelAngleDegrees);
    const double distance = frame.lengthOf(unit);
    const double dx = distance * std::cos(angle);
    const double dy = distance * std::sin(angle);
    return {(frame.width - 2.5 * previous.width) / 2 + static_cast<double>(frame.geometry.OriginOffsetX) +
                dx + 0.75 * previous.width * std::cos(angle),
            (frame.height - 0.5 * previous.height) / 2 + static_cast<double>(frame.geometry.OriginOffsetY) -
                dy - 0.75 * previous.height * std::sin(angle)};
}

std::string percentOf(const Frame& frame, int unit) {
    return doubleText(roundHalfEven(unit * frame.settings.Style.percentPerRing, 2)) + "%";
}

/// How many rings have one label: the usual look labels each ring, in others no label reaches the next.
int ringsPerLabel(const Frame& frame, int labels) {
    constexpr double gap = 3;
    if (frame.innerUnits <= 0 && frame.settings.Style.percentPerRing == percentPerUnit) return 1;
    const double step =
        (frame.lengthOf(1) - frame.lengthOf(0)) * std::cos(MathLibrary::Radians(labelAngleDegrees));
    const double width =
        frame.canvas.measure(percentOf(frame, labels), textStyleOf(frame.tables.PercentFont)).width;
    return step > 0 ? std::max(1, static_cast<int>(std::ceil(std::min((width + gap) / step, 1000.0)))) : 1;
}

}  // namespace

void drawPercentLabels(Frame& frame) {
    const CanvasGroup group(frame.canvas, "percents");
    const int labels = wholeUnits(frame.polar);
    const int perLabel = ringsPerLabel(frame, labels);
    for (int j = 1; j <= labels; ++j) {
        if ((labels - j) % perLabel != 0) continue;  // the outer ring always has its label
        const TextSize previous = frame.canvas.measure(frame.lastLabel, frame.textStyle);
        frame.canvas.setTextPosition(labelPlace(frame, j, previous));
        frame.lastLabel = percentOf(frame, j);
        frame.textStyle = textStyleOf(frame.tables.PercentFont);
        frame.canvas.text(frame.lastLabel, frame.textStyle);
    }
}

}  // namespace zg
