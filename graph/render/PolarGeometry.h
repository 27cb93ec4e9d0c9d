#pragma once

namespace zg {

/// Geometry of the last redraw, kept for the tools, in scale units of the canvas.
struct PolarGeometry {
    float OriginOffsetX = 0;  ///< shift of the centre from the canvas centre
    float OriginOffsetY = 0;
    float CentreX = 0;
    float CentreY = 0;
    float UnitLength = 0;  ///< canvas length of one unit of polar radius
};

}  // namespace zg
