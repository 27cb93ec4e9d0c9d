#pragma once

#include <cstdint>

#include "base/Style.h"
#include "graph/render/Canvas.h"
#include "graph/render/RoseStyle.h"

namespace zg {

/// The properties of the control that a redraw uses, under their names and with a new control's values.
struct PlotSettings {
    float AspectRatio = 1.5F;  ///< divides the drawing: a larger ratio gives a smaller rose
    std::int16_t Zoom = 50;    ///< percent
    bool ShowCoordinateSystem = true;
    bool ShowLabel = true;
    bool ShowLegend = true;
    std::int32_t ShowGrid = 1;      ///< 0 no rings or spokes, 1 fine, 2 coarse
    std::int32_t PictureStyle = 0;  ///< 0 top left, 1 centred, 2 stretched, else tiled
    PicturePointer Picture;         ///< background, null for none
    Colour BackColor = white;
    RoseStyle Style;
};

}  // namespace zg
