#pragma once

#include "graph/render/Frame.h"

namespace zg {

/// The file's direction row (1 north, clockwise to 16) of sector 0 to 15 (0 east, counterclockwise).
int directionRow(int sector);

/// A bar of a sector, degrees counterclockwise from east; a start greater than the end crosses east.
struct SectorSpan {
    double startDegrees = 0;
    double endDegrees = 0;
    bool operator==(const SectorSpan&) const = default;
};

constexpr double sectorStep = 22.5;  ///< degrees from one direction to the next

/// The bar is so many degrees wide about the sector's direction.
SectorSpan sectorSpan(int sector, double width = RoseStyle().sectorWidth);

/// Canvas length from the centre to the end of a class 1 to 6 in a sector's bar.
double barRadius(const Frame& frame, int sector, int speedClass);

/// A filled pie sector of the circle about (cx, cy), outlined in the desktop's scroll bar colour.
void DrawPiePiece(Canvas& canvas, float cx, float cy, double radius, float color, double startDegrees,
                  double endDegrees);

/// The disc of the calms where the style wants one, the stacked bars of the current rose and, outside the
/// outer ring, the direction labels, sector by sector.
void drawWindRose(Frame& frame);

}  // namespace zg
