#include "graph/render/CoordinateSystem.h"

#include <cmath>

#include "base/MathLibrary.h"

namespace zg {

namespace {

void drawRings(Frame& frame, Colour gridColour) {
    if (frame.settings.ShowGrid == 0) return;
    const CanvasGroup group(frame.canvas, "rings");
    const int rings = wholeUnits(frame.polar);
    for (int i = 1; i <= rings; ++i) frame.canvas.circle(frame.centre(), frame.lengthOf(i), gridColour);
}

void drawSpokes(Frame& frame, Colour gridColour) {
    const int count = spokeCount(frame.settings.ShowGrid);
    if (count == 0) return;
    const CanvasGroup group(frame.canvas, "spokes");
    const Point centre = frame.centre();
    const double radius = frame.outerRadius();
    for (int j = 0; j < count; ++j) {
        const double angle = MathLibrary::Radians(j * 360.0 / count);
        frame.canvas.line(centre, {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)},
                          LineStyle{gridColour, 1, 0});
    }
}

}  // namespace

int spokeCount(std::int32_t showGrid) {
    if (showGrid == 1) return 64;
    if (showGrid == 2) return 16;
    return 0;
}

void drawCoordinateSystem(Frame& frame) {
    const Colour gridColour = paintedColour(frame.tables.GridLineColor);
    frame.canvas.disc(frame.centre(), frame.outerRadius(), frame.polar.FillColor, frame.polar.FillColor);
    drawRings(frame, gridColour);
    drawSpokes(frame, gridColour);
}

}  // namespace zg
