#pragma once

#include <cstdint>
#include <string>

#include "graph/render/Canvas.h"

namespace zg {

/// Properties that affect neither drawing nor layout, under their names and with a new control's values.
struct ControlProperties {
    bool AutoUpdate = true;
    std::string Comment;
    PicturePointer MouseIcon;
    std::int16_t MousePointer = 0;
    std::int32_t SetActiveTool = 0;
    std::int32_t SetRulerMode = 1;
    bool StopAni = true;
};

}  // namespace zg
