// Page and children of the control: the properties that position them, scrolling, and the corner.

#include <algorithm>

#include "graph/control/PolarGraph.h"

namespace zg {

void PolarGraph::OffsetDrawingAreaX(std::int16_t value) {
    page_.OffsetDrawingAreaX = value;
    movePage();
}

void PolarGraph::OffsetDrawingAreaY(std::int16_t value) {
    page_.OffsetDrawingAreaY = value;
    movePage();
}

void PolarGraph::ScrollBars(std::int32_t value) {
    page_.ScrollBars = value;
    movePage();
}

void PolarGraph::ShowRuler(bool value) {
    page_.ShowRuler = value;
    movePage();
}

void PolarGraph::Zoom(std::int16_t value) {
    settings_.Zoom = value;
    resizePage();
    changedOnPage();
}

void PolarGraph::keepPageCentred() {
    centredAt_ = PagePlace{page_.OffsetDrawingAreaX, page_.OffsetDrawingAreaY};
    arrangeChildren();
}

void PolarGraph::ResetDrawingArea() { cornerPressed(leftButton); }

void PolarGraph::layout(int width, int height) {
    page_.width = std::max(0, width);
    page_.height = std::max(0, height);
    arrangeChildren();
}

void PolarGraph::scrollTo(int horizontal, int vertical) {
    horizontalScroll_.value = horizontal;
    verticalScroll_.value = vertical;
    arrangeChildren();
}

void PolarGraph::cornerPressed(std::int16_t button) {
    if (button == leftButton) {
        const ChildSurface& corner = surfaces_.picRulerJ;
        page_.OffsetDrawingAreaX = static_cast<std::int16_t>(corner.width + cornerGap);
        page_.OffsetDrawingAreaY = static_cast<std::int16_t>(corner.height + cornerGap);
        changed();
        scrollTo(0, 0);
    } else if (button == rightButton) {
        SetRulerMode(own_.SetRulerMode == 1 ? 0 : 1);
    }
}

void PolarGraph::resizePage() {
    page_.page = pageSize(settings_.Zoom);
    window_.pageResized(page_.page, page_.page);
    record_.reset();
    configured_.reset();
    arrangeChildren();
}

void PolarGraph::movePage() {
    arrangeChildren();
    changedOnPage();
}

/// One that is no longer where it was centred has been moved, and stays.
void PolarGraph::centreUnmovedPage() {
    if (centredAt_ != PagePlace{page_.OffsetDrawingAreaX, page_.OffsetDrawingAreaY}) return;
    centredAt_ = centredPlace(page_);
    page_.OffsetDrawingAreaX = centredAt_->x;
    page_.OffsetDrawingAreaY = centredAt_->y;
}

void PolarGraph::arrangeChildren() {
    centreUnmovedPage();
    arrange(page_, surfaces_, horizontalScroll_, verticalScroll_);
    window_.layoutChanged();
    window_.rulersChanged();
}

}  // namespace zg
