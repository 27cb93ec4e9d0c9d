#pragma once

#include "graph/render/Canvas.h"

namespace zg {

/// Geometry of the last redraw, kept for the tools, in scale units of the canvas.
struct PolarGeometry {
    float OriginOffsetX = 0;  ///< shift of the centre from the canvas centre
    float OriginOffsetY = 0;
    float CentreX = 0;
    float CentreY = 0;
    float UnitLength = 0;  ///< canvas length of one unit of polar radius

    Point centre() const { return {static_cast<double>(CentreX), static_cast<double>(CentreY)}; }

    /// The place of a point that is given in polar units about the centre, y downwards.
    Point onCanvas(Point point) const {
        const auto unit = static_cast<double>(UnitLength);
        return {static_cast<double>(CentreX) + point.x * unit, static_cast<double>(CentreY) + point.y * unit};
    }
};

}  // namespace zg
