#include "graph/control/PageLayout.h"

#include <algorithm>
#include <limits>

namespace zg {

namespace {

void arrangeScrollBars(const PageLayout& layout, ChildSurfaces& surfaces) {
    const bool both = layout.ScrollBars == 3;
    const bool horizontal = both || layout.ScrollBars == 1;
    const bool vertical = both || layout.ScrollBars == 2;
    const int bar = scrollBarThickness;
    const int right = std::max(0, layout.width - bar);
    const int bottom = std::max(0, layout.height - bar);
    surfaces.hsScroll = {0, bottom, both ? right : layout.width, bar, horizontal};
    surfaces.vsScroll = {right, 0, bar, both ? bottom : layout.height, vertical};
    surfaces.picScroll = {right, bottom, bar, bar, both};
}

void arrangeRulers(const PageLayout& layout, ChildSurfaces& surfaces) {
    const int ruler = rulerThickness;
    const bool shown = layout.ShowRuler;
    const int right = surfaces.vsScroll.visible ? surfaces.vsScroll.left : layout.width;
    const int bottom = surfaces.hsScroll.visible ? surfaces.hsScroll.top : layout.height;
    const int across = std::max(0, right - ruler);
    const int down = std::max(0, bottom - ruler);
    surfaces.picRulerJ = {0, 0, ruler, ruler, shown};
    surfaces.picHolderRH = {ruler, 0, across, ruler, shown};
    surfaces.picRulerH = {0, 0, across, ruler, shown};
    surfaces.picHolderRV = {0, ruler, ruler, down, shown};
    surfaces.picRulerV = {0, 0, ruler, down, shown};
}

/// One can scroll from the page's edge to the end of its shadow, and always to the unscrolled position.
void rangeOver(ScrollRange& range, int offset, int page, int visible) {
    range.minimum = std::min(0, offset);
    range.maximum = std::max(0, offset + page + shadowOffset - visible);
    range.largeChange = std::max(1, visible);
    range.value = std::clamp(range.value, range.minimum, range.maximum);
}

std::int16_t middle(int ruler, int end, int page) {
    const int gap = std::max(cornerGap, (end - ruler - page) / 2);
    return static_cast<std::int16_t>(std::min(ruler + gap, int{std::numeric_limits<std::int16_t>::max()}));
}

}  // namespace

PagePlace centredPlace(const PageLayout& layout) {
    ChildSurfaces surfaces;
    arrangeScrollBars(layout, surfaces);
    const int right = surfaces.vsScroll.visible ? surfaces.vsScroll.left : layout.width;
    const int bottom = surfaces.hsScroll.visible ? surfaces.hsScroll.top : layout.height;
    const int ruler = layout.ShowRuler ? rulerThickness : 0;
    return {middle(ruler, right, layout.page), middle(ruler, bottom, layout.page)};
}

int pageSize(std::int16_t zoom) { return std::max(1, zoom * 6); }

void arrange(const PageLayout& layout, ChildSurfaces& surfaces, ScrollRange& horizontal,
             ScrollRange& vertical) {
    arrangeScrollBars(layout, surfaces);
    arrangeRulers(layout, surfaces);
    const int size = layout.page;
    const int visibleWidth = surfaces.vsScroll.visible ? surfaces.vsScroll.left : layout.width;
    const int visibleHeight = surfaces.hsScroll.visible ? surfaces.hsScroll.top : layout.height;
    rangeOver(horizontal, layout.OffsetDrawingAreaX, size, visibleWidth);
    rangeOver(vertical, layout.OffsetDrawingAreaY, size, visibleHeight);
    const int left = layout.OffsetDrawingAreaX - horizontal.value;
    const int top = layout.OffsetDrawingAreaY - vertical.value;
    surfaces.picGraph = {left, top, size, size, true};
    surfaces.picShadow = {left + shadowOffset, top + shadowOffset, size, size, true};
}

}  // namespace zg
