#include "graph/render/PercentLabels.h"

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

}  // namespace

void drawPercentLabels(Frame& frame) {
    const CanvasGroup group(frame.canvas, "percents");
    const int labels = wholeUnits(frame.polar);
    for (int j = 1; j <= labels; ++j) {
        const TextSize previous = frame.canvas.measure(frame.lastLabel, frame.textStyle);
        frame.canvas.setTextPosition(labelPlace(frame, j, previous));
        frame.lastLabel = doubleText(roundHalfEven(j * frame.settings.Style.percentPerRing, 2)) + "%";
        frame.textStyle = textStyleOf(frame.tables.PercentFont);
        frame.canvas.text(frame.lastLabel, frame.textStyle);
    }
}

}  // namespace zg
