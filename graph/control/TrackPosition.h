#pragma once

#include <optional>

#include "graph/render/PolarGeometry.h"

namespace zg {

/// What the control reports about the pointer at every move over the page.
struct TrackedPosition {
    float x = 0;        ///< polar units, positive to the right of the centre
    float y = 0;        ///< positive above the centre
    float bearing = 0;  ///< degrees clockwise from north
    float area = 0;     ///< of the circle of the radial value
    float circumference = 0;
    float diameter = 0;
    float radial = 0;  ///< distance from the centre times the grid's unit
};

/// The pointer at (x, y) on the page. With the circular tool the radial value is that of the displayed
/// circle, whose width is given. Raises 11 if nothing has been drawn yet to give a scale.
TrackedPosition trackPosition(float x, float y, const PolarGeometry& geometry, float polarUnit,
                              std::optional<float> circleWidth);

/// Compass bearing of a point that is X to the left of the centre and Y above it. The centre itself gives
/// 180.
double bearingDegrees(double X, double Y);

}  // namespace zg
