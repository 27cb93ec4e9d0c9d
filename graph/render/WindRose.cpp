#include "graph/render/WindRose.h"

#include <cmath>

#include "base/MathLibrary.h"

namespace zg {

namespace {

constexpr int sectors = freqDirections;
constexpr double sectorStep = 22.5;
constexpr double halfWidth = 360.0 / 96;
constexpr double radiansPerDegree = 6.28318530718 / 360;
constexpr double unitsPerWhole = 100 / percentPerUnit;

void drawStack(Frame& frame, int sector) {
    const ModPolarGraph& tables = frame.tables;
    const PolarGeometry& geometry = frame.geometry;
    const std::int64_t row = fractionRow(tables.CurrentRose, directionRow(sector));
    const SectorSpan span = sectorSpan(sector);
    // The longest bar first: each lower class paints over it.
    for (int speedClass = speedClasses; speedClass >= 1; --speedClass) {
        double share = 0;
        for (int c = 1; c <= speedClass; ++c) share += tables.FrqFraction(row, c);
        DrawPiePiece(frame.canvas, geometry.CentreX, geometry.CentreY,
                     share * unitsPerWhole * static_cast<double>(geometry.UnitLength),
                     tables.WindClassColor[static_cast<std::size_t>(speedClass - 1)], span.startDegrees,
                     span.endDegrees);
    }
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

SectorSpan sectorSpan(int sector) {
    const double middle = sector * sectorStep;
    SectorSpan span{middle - halfWidth, middle + halfWidth};
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
    for (int sector = 0; sector < sectors; ++sector) {
        if (tables.FrqLoaded && tables.FrqRoseCount > 0) drawStack(frame, sector);
        if (frame.settings.ShowLabel && tables.FrqLoaded) drawDirectionLabel(frame, sector);
    }
}

}  // namespace zg
