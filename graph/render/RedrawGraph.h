#pragma once

// Paints the whole plot anew at every change: background, legend, titles, polar grid, wind rose and labels.
// Curves and rulers come after it; the control calls them.

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"
#include "graph/render/Canvas.h"
#include "graph/render/PlotSettings.h"
#include "graph/render/PolarGeometry.h"

namespace zg {

/// What a redraw of that mode paints after the frame: 0 nothing, 1 the curves, 2 the rulers, any other both.
struct AfterFrame {
    bool curves = false;
    bool rulers = false;
    bool operator==(const AfterFrame&) const = default;
};
constexpr AfterFrame afterFrame(std::int16_t mode) {
    if (mode >= 0 && mode <= 2) return {mode == 1, mode == 2};
    return {true, true};
}

/// Positions the centre: in the middle of the surface while the origin is automatic (X and Y are then reset),
/// otherwise shifted by X and Y, scaled by the zoom.
void placeCentre(Origin& origin, std::int16_t zoom, double width, double height, PolarGeometry& geometry);

/// Canvas length of one polar unit; raises 11 for a radius or ratio of 0.
float unitLength(double width, double height, float radius, float aspectRatio);

/// Paints the frame on the canvas, makes it the persistent picture and stores its geometry. An error of the
/// tables (9) or of the grid (6, 11) reaches the caller; what has been painted remains.
void redrawFrame(const PlotSettings& settings, Polar& polar, ModPolarGraph& tables, Canvas& canvas,
                 PolarGeometry& geometry);

}  // namespace zg
