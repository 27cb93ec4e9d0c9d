#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"
#include "graph/render/Canvas.h"
#include "graph/render/PlotSettings.h"
#include "graph/render/PolarGeometry.h"

namespace zg {

/// The state of one redraw: its input, its canvas, and what each piece leaves for the next one.
struct Frame {
    const PlotSettings& settings;
    Polar& polar;
    ModPolarGraph& tables;
    Canvas& canvas;
    PolarGeometry& geometry;
    double width = 0;  ///< of the canvas, scale units
    double height = 0;
    double innerUnits = 0;  ///< polar units of the calm circle, where bars and rings begin
    /// The current text style. A piece that writes leaves its style behind, and later texts are measured in
    /// it.
    TextStyle textStyle;
    std::string lastLabel = {};  ///< the last direction or percent label, "" before the first

    Point centre() const { return geometry.centre(); }
    /// Canvas length from the centre of so many polar units of a bar or ring.
    double lengthOf(double units) const {
        return (innerUnits + units) * static_cast<double>(geometry.UnitLength);
    }
    double outerRadius() const { return lengthOf(static_cast<double>(polar.Radius)); }
};

/// The style of a font family in its own colour.
TextStyle textStyleOf(const FontRecord& font);

/// The same for the lines of the legend and of the titles, whose distances shrink with the page: if the style
/// of the rose asks for it, their size does so too, below a zoom of 100 percent.
TextStyle lineStyleOf(const FontRecord& font, const PlotSettings& settings);

/// Number of whole polar units within the radius; raises 6 above 32767.
int wholeUnits(const Polar& polar);

}  // namespace zg
