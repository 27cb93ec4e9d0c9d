#include "graph/control/PageTools.h"

#include <algorithm>
#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "graph/control/PolarGraphEvents.h"

namespace zg {

namespace {

constexpr std::int32_t circularTool = 1;
constexpr std::int32_t crossTool = 2;
constexpr std::int32_t panTool = 3;
constexpr std::int32_t selectTool = 4;

/// The pointer of a new tool; the host may set another.
std::int16_t pointerOf(std::int32_t tool) {
    constexpr std::int16_t arrow = 1;
    constexpr std::int16_t cross = 2;
    constexpr std::int16_t sizeAll = 5;
    if (tool == panTool) return sizeAll;
    return tool == circularTool || tool == crossTool || tool == selectTool ? cross : arrow;
}

int whole(float place) { return static_cast<int>(std::floor(place)); }

/// The rectangle with these two corners in any order, both included.
ChildSurface rectangleOf(float x1, float y1, float x2, float y2) {
    const int left = whole(std::min(x1, x2));
    const int top = whole(std::min(y1, y2));
    const int width = whole(std::max(x1, x2)) - left + 1;
    const int height = whole(std::max(y1, y2)) - top + 1;
    return {left, top, width, height, width > 1 || height > 1};
}

}  // namespace

void PageTools::end() {
    ChildSurfaces& surfaces = control_.surfaces;
    for (ChildSurface* shape : {&surfaces.shpCircle, &surfaces.shpSelect, &surfaces.shpRubber})
        shape->visible = false;
    for (ChildSurface* line :
         {&surfaces.linCrossH, &surfaces.linCrossV, &surfaces.linRulerH, &surfaces.linRulerV})
        *line = {};
    dragging_ = false;
    circleWidth_ = 0;
    control_.window.shapesChanged();
}

void PageTools::begin() {
    control_.properties.MousePointer = pointerOf(control_.properties.SetActiveTool);
    control_.window.pointerChanged();
    if (!is(crossTool)) return;
    const float middle = static_cast<float>(control_.page.page) / 2;
    showCross(middle, middle);
    showRulerLines(middle, middle);
    control_.window.shapesChanged();
}

void PageTools::press(std::int16_t button, float x, float y) {
    if (button != leftButton) return;
    if (is(panTool)) {
        PanStartX_ = whole(x);
        PanStartY_ = whole(y);
        rememberPage();
        dragging_ = true;
    } else if (is(selectTool)) {
        control_.surfaces.shpSelect.visible = false;
        RubberStartX_ = RubberEndX_ = withinPage(x);
        RubberStartY_ = RubberEndY_ = withinPage(y);
        dragging_ = true;
        control_.window.shapesChanged();
    }
}

void PageTools::move(std::int16_t buttons, float x, float y) {
    if (is(circularTool)) showCircle(x, y);
    if (is(crossTool)) showCross(x, y);
    const bool drags = dragging_ && (buttons & leftButton) != 0;
    // The page moves with the pointer, so that the point at which the drag began stays under it.
    if (drags && is(panTool))
        movePage_(control_.page.OffsetDrawingAreaX + whole(x) - PanStartX_,
                  control_.page.OffsetDrawingAreaY + whole(y) - PanStartY_);
    if (drags && is(selectTool)) showRubber(x, y);
    showRulerLines(x, y);
    control_.window.shapesChanged();
}

void PageTools::release(std::int16_t button) {
    if (button != leftButton || !dragging_) return;
    dragging_ = false;
    if (!is(selectTool)) return;
    control_.surfaces.shpRubber.visible = false;
    control_.surfaces.shpSelect = rectangleOf(RubberStartX_, RubberStartY_, RubberEndX_, RubberEndY_);
    control_.window.shapesChanged();
}

bool PageTools::cancel() {
    ChildSurfaces& surfaces = control_.surfaces;
    const bool dragged = dragging_;
    if (!dragged && !surfaces.shpSelect.visible) return false;
    dragging_ = false;
    (dragged ? surfaces.shpRubber : surfaces.shpSelect).visible = false;
    control_.window.shapesChanged();
    if (dragged && is(panTool)) movePage_(pageX_, pageY_);
    return true;
}

void PageTools::pointerLeft() {
    control_.surfaces.linRulerH.visible = control_.surfaces.linRulerV.visible = false;
    control_.window.shapesChanged();
}

void PageTools::pressRuler(float x, float y) {
    rulerX_ = x;
    rulerY_ = y;
    rememberPage();
}

void PageTools::dragRuler(float x, float y) {
    movePage_(pageX_ - whole(rulerX_ - x), pageY_ - whole(rulerY_ - y));
}

void PageTools::selectAll() {
    if (hasSelection()) return;
    control_.surfaces.shpSelect = {0, 0, control_.page.page, control_.page.page, true};
    control_.window.shapesChanged();
}

bool PageTools::hasSelection() const {
    const ChildSurface& selection = control_.surfaces.shpSelect;
    return selection.visible && !(selection.width == 1 && selection.height == 1);
}

std::optional<float> PageTools::circleWidth() const {
    return is(circularTool) ? std::optional<float>(circleWidth_) : std::nullopt;
}

void PageTools::showCircle(float x, float y) {
    const PolarGeometry& geometry = control_.geometry;
    const double radius = MathLibrary::Radius(static_cast<double>(x - geometry.CentreX),
                                              static_cast<double>(y - geometry.CentreY));
    circleWidth_ = toSingle(2 * radius);
    const auto left = static_cast<int>(std::lround(static_cast<double>(geometry.CentreX) - radius));
    const auto top = static_cast<int>(std::lround(static_cast<double>(geometry.CentreY) - radius));
    const auto size = static_cast<int>(std::lround(2 * radius));
    control_.surfaces.shpCircle = {left, top, size, size, true};
}

void PageTools::showCross(float x, float y) {
    control_.surfaces.linCrossH = {0, whole(y), control_.page.page, 1, true};
    control_.surfaces.linCrossV = {whole(x), 0, 1, control_.page.page, true};
}

void PageTools::showRulerLines(float x, float y) {
    ChildSurfaces& surfaces = control_.surfaces;
    const int across = surfaces.picGraph.left + whole(x) - surfaces.picHolderRH.left;
    const int down = surfaces.picGraph.top + whole(y) - surfaces.picHolderRV.top;
    surfaces.linRulerH = {across, 0, 1, surfaces.picRulerH.height, true};
    surfaces.linRulerV = {0, down, surfaces.picRulerV.width, 1, true};
}

void PageTools::showRubber(float x, float y) {
    RubberEndX_ = withinPage(x);
    RubberEndY_ = withinPage(y);
    control_.surfaces.shpRubber = rectangleOf(RubberStartX_, RubberStartY_, RubberEndX_, RubberEndY_);
}

float PageTools::withinPage(float place) const {
    return std::clamp(place, 0.0F, static_cast<float>(control_.page.page - 1));
}

void PageTools::rememberPage() {
    pageX_ = control_.page.OffsetDrawingAreaX;
    pageY_ = control_.page.OffsetDrawingAreaY;
}

}  // namespace zg
