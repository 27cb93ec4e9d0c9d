#pragma once

// The rulers along the page: their marks, and how to paint them. Layout comes first, painting second.

#include <cstdint>
#include <string>
#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

enum class RulerSide { Top, Left };

/// What a ruler shows, in pixels along it.
struct RulerView {
    bool horizontal = true;
    double length = 0;
    double thickness = 0;
    double pageStart = 0;  ///< the page's near edge
    double pageLength = 0;
    double centre = 0;      ///< the grid's centre
    double unitLength = 0;  ///< of one polar unit
    float unit = 0.5F;      ///< polar units between marks
    std::int32_t mode =
        1;  ///< 1 numbers polar units from the centre, any other value pixels from the page's edge
};

struct RulerMark {
    double position = 0;
    std::string text;  ///< "" for a short mark
    bool operator==(const RulerMark&) const = default;
};

/// The marks within the page. Numbers are far enough apart to be readable.
std::vector<RulerMark> rulerMarks(const RulerView& view);

void paintRuler(Canvas& canvas, const RulerView& view);

/// The corner between the rulers.
void paintRulerCorner(Canvas& canvas);

}  // namespace zg
