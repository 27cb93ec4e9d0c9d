#include "graph/render/WindRose.h"

#include <cmath>
#include <optional>

#include "base/MathLibrary.h"
#include "graph/render/Hatch.h"
#include "graph/render/RoseWords.h"

namespace zg {

namespace {

constexpr int sectors = freqDirections;
constexpr double radiansPerDegree = 6.28318530718 / 360;

void hatchClass(Frame& frame, int sector, const SectorSpan& span, int speedClass, Colour fill) {
    const double inner = speedClass == 1 ? frame.lengthOf(0) : barRadius(frame, sector, speedClass - 1);
    drawHatch(frame.canvas,
              hatchOfRingPart({frame.centre(), inner, barRadius(frame, sector, speedClass),
                               span.startDegrees * radiansPerDegree, span.endDegrees * radiansPerDegree},
                              speedClass),
              hatchColour(fill));
}

/// The limits are those of the words; without them none are said.
void drawStack(Frame& frame, int sector, const std::optional<SpeedLimits>& limits) {
    const ModPolarGraph& tables = frame.tables;
    const PolarGeometry& geometry = frame.geometry;
    const RoseStyle& look = frame.settings.Style;
    const int direction = directionRow(sector);
    const SectorSpan span = sectorSpan(sector, look.sectorWidth);
    // The longest bar first: each lower class paints over it.
    for (int speedClass = speedClasses; speedClass >= 1; --speedClass) {
        if (limits && shareOf(tables, direction, speedClass) == 0) continue;
        if (limits)
            frame.canvas.describe("class" + std::to_string(speedClass),
                                  barWords(tables, *limits, direction, speedClass));
        const float colour = tables.WindClassColor[static_cast<std::size_t>(speedClass - 1)];
        DrawPiePiece(frame.canvas, geometry.CentreX, geometry.CentreY, barRadius(frame, sector, speedClass),
                     colour, span.startDegrees, span.endDegrees);
        if (look.hatch) hatchClass(frame, sector, span, speedClass, paintedColour(colour));
    }
}

/// Over the bars, which begin at its edge.
void drawCalmCircle(Frame& frame) {
    frame.canvas.describe("calm", frame.canvas.keepsWords() ? calmWords(frame.tables) : std::string());
    frame.canvas.disc(frame.centre(), frame.lengthOf(0), calmColour, scrollBarColour);
}

std::optional<SpeedLimits> limitsForWords(const Frame& frame) {
    if (!frame.canvas.keepsWords()) return {};
    const bool knots = frame.tables.ClassesInKnots && !frame.tables.ClassesFromFile;
    const SpeedUnit chosen = frame.settings.Style.unit;
    return speedLimits(frame.tables, chosen == SpeedUnit::AsChosen && knots ? SpeedUnit::Knots : chosen);
}

void drawDirectionLabel(Frame& frame, int sector) {
    const std::string& label = frame.tables.FrqDirectionLabel(directionRow(sector));
    frame.textStyle = textStyleOf(frame.tables.DirectionFont);
    const TextSize size = frame.canvas.measure(label, frame.textStyle);
    const double angle = MathLibrary::Radians(sector * sectorStep);
    const double radius = frame.outerRadius();
    const double x = (frame.width - size.width) / 2 + static_cast<double>(frame.geometry.OriginOffsetX) +
                     radius * std::cos(angle) + 0.75 * size.width * std::cos(angle);
    const double y = (frame.height - size.height) / 2 + static_cast<double>(frame.geometry.OriginOffsetY) -
                     radius * std::sin(angle) - 0.75 * size.height * std::sin(angle);
    frame.canvas.setTextPosition({x, y});
    frame.canvas.text(label, frame.textStyle);
    frame.lastLabel = label;
}

}  // namespace

int directionRow(int sector) {
    const int row = 22 - (sector + 1);
    return row > sectors ? row - sectors : row;
}

double barRadius(const Frame& frame, int sector, int speedClass) {
    const ModPolarGraph& tables = frame.tables;
    const std::int64_t row = fractionRow(tables.CurrentRose, directionRow(sector));
    double share = 0;
    for (int c = 1; c <= speedClass; ++c) share += tables.FrqFraction(row, c);
    return frame.lengthOf(share * (100 / frame.settings.Style.percentPerRing));
}

SectorSpan sectorSpan(int sector, double width) {
    const double middle = sector * sectorStep;
    SectorSpan span{middle - width / 2, middle + width / 2};
    if (span.startDegrees < 0) span.startDegrees += 360;
    if (span.endDegrees > 360) span.endDegrees -= 360;
    return span;
}

void DrawPiePiece(Canvas& canvas, float cx, float cy, double radius, float color, double startDegrees,
                  double endDegrees) {
    canvas.pie({cx, cy}, radius, startDegrees * radiansPerDegree, endDegrees * radiansPerDegree,
               paintedColour(color), scrollBarColour);
}

void drawWindRose(Frame& frame) {
    const ModPolarGraph& tables = frame.tables;
    const CanvasGroup group(frame.canvas, "bars");
    const bool hasBars = tables.FrqLoaded && tables.FrqRoseCount > 0;
    const std::optional<SpeedLimits> limits = hasBars ? limitsForWords(frame) : std::nullopt;
    for (int sector = 0; sector < sectors; ++sector) {
        if (hasBars) drawStack(frame, sector, limits);
        if (frame.settings.ShowLabel && tables.FrqLoaded) drawDirectionLabel(frame, sector);
    }
    if (frame.innerUnits > 0) drawCalmCircle(frame);
}

}  // namespace zg
