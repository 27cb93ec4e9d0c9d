#pragma once

// The positions of the control's child surfaces. The work area is the whole control; rulers and scroll bars
// cover it along the edges, and the page is on it at its offset.

#include <cstdint>

namespace zg {

/// Position and visibility of a child surface, in pixels. The rulers are relative to their holders;
/// shpSelect, shpCircle, shpRubber and the crosshair to the page, the tracking lines to their rulers; all
/// others to the control.
struct ChildSurface {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool visible = false;
    bool operator==(const ChildSurface&) const = default;
};

struct ChildSurfaces {
    ChildSurface picScroll;    ///< filler between the two scroll bars
    ChildSurface hsScroll;     ///< along the bottom
    ChildSurface vsScroll;     ///< along the right
    ChildSurface picHolderRV;  ///< left edge, holds picRulerV
    ChildSurface picRulerV;
    ChildSurface picHolderRH;  ///< top edge, holds picRulerH
    ChildSurface picRulerH;
    ChildSurface picRulerJ;  ///< corner where the rulers join
    ChildSurface picGraph;   ///< the page
    ChildSurface picShadow;
    ChildSurface picBuffer;  ///< never shown
    ChildSurface lblTrackAngle;
    ChildSurface shpSelect;
    ChildSurface shpCircle;
    ChildSurface shpRubber;  ///< the rectangle during a drag
    ChildSurface linCrossH;  ///< along x through the pointer
    ChildSurface linCrossV;
    ChildSurface linRulerH;  ///< tracking line across picRulerH, at the pointer's x
    ChildSurface linRulerV;  ///< across picRulerV, at its y
};

/// A scroll bar's range and position, in pixels of the work area. The range always includes 0.
struct ScrollRange {
    int minimum = 0;
    int maximum = 0;
    int value = 0;
    int smallChange = 10;
    int largeChange = 1;
    bool operator==(const ScrollRange&) const = default;
};

constexpr int rulerThickness = 20;
constexpr int scrollBarThickness = 17;
constexpr int shadowOffset = 3;
constexpr int cornerGap = 5;

/// Width and height of the square page at that zoom in percent, at least 1.
int pageSize(std::int16_t zoom);

/// The input of the layout.
struct PageLayout {
    int width = 0;  ///< of the control
    int height = 0;
    std::int32_t ScrollBars = 3;  ///< 1 horizontal, 2 vertical, 3 both, else none
    bool ShowRuler = false;
    int page = 300;                       ///< width and height of the page, at least 1
    std::int16_t OffsetDrawingAreaX = 0;  ///< top left of the page within the work area, before scrolling
    std::int16_t OffsetDrawingAreaY = 0;
};

/// The top left of a page within the work area.
struct PagePlace {
    std::int16_t x = 0;
    std::int16_t y = 0;
    bool operator==(const PagePlace&) const = default;
};

/// The place of a page in the middle of what rulers and scroll bars leave free. Along an axis with too little
/// room it is beside the ruler.
PagePlace centredPlace(const PageLayout& layout);

/// Arranges scroll bars, rulers, page and shadow. The scroll ranges follow the page, their values are kept
/// within them, and the page is shifted by the values. Other surfaces are unchanged.
void arrange(const PageLayout& layout, ChildSurfaces& surfaces, ScrollRange& horizontal,
             ScrollRange& vertical);

}  // namespace zg
