#pragma once

// Patterns of strokes that distinguish the speed classes without colours.

#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

struct HatchStroke {
    Point from;
    Point to;
    bool operator==(const HatchStroke&) const = default;
};

/// The strokes of a class 1 to 6 within a rectangle. Patterns continue across adjacent rectangles.
std::vector<HatchStroke> hatchOfRectangle(const Rect& rectangle, int speedClass);

/// A part of a ring around a centre: radii, and angles in radians counterclockwise from east, less than half
/// a turn apart; a start greater than the end crosses east.
struct RingPart {
    Point centre;
    double inner = 0;
    double outer = 0;
    double start = 0;
    double end = 0;
};
std::vector<HatchStroke> hatchOfRingPart(const RingPart& part, int speedClass);

/// Black, or white if black would be invisible on that colour.
Colour hatchColour(Colour fill);

/// Draws the strokes, one unit wide.
void drawHatch(Canvas& canvas, const std::vector<HatchStroke>& strokes, Colour colour);

}  // namespace zg
