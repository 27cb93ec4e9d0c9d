// The tools: the effect of the pointer on the page and on the rulers.

#include <algorithm>
#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "graph/control/PolarGraph.h"
#include "graph/control/TrackPosition.h"

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

void PolarGraph::endTool() {
    for (ChildSurface* shape : {&surfaces_.shpCircle, &surfaces_.shpSelect, &surfaces_.shpRubber})
        shape->visible = false;
    for (ChildSurface* line :
         {&surfaces_.linCrossH, &surfaces_.linCrossV, &surfaces_.linRulerH, &surfaces_.linRulerV})
        *line = {};
    dragging_ = false;
    circleWidth_ = 0;
    window_.shapesChanged();
}

void PolarGraph::beginTool() {
    own_.MousePointer = pointerOf(own_.SetActiveTool);
    window_.pointerChanged();
    if (own_.SetActiveTool != crossTool) return;
    const float middle = static_cast<float>(page_.page) / 2;
    showCross(middle, middle);
    showRulerLines(middle, middle);
    window_.shapesChanged();
}

void PolarGraph::mouseDown(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseDown) events.MouseDown(button, shift, x, y);
    if (button != leftButton) return;
    if (own_.SetActiveTool == panTool) {
        PanStartX_ = whole(x);
        PanStartY_ = whole(y);
        dragFrom_ = {page_.OffsetDrawingAreaX, page_.OffsetDrawingAreaY};
        dragging_ = true;
    } else if (own_.SetActiveTool == selectTool) {
        surfaces_.shpSelect.visible = false;
        RubberStartX_ = RubberEndX_ = withinPage(x);
        RubberStartY_ = RubberEndY_ = withinPage(y);
        dragging_ = true;
        window_.shapesChanged();
    }
}

void PolarGraph::mouseMove(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseMove) events.MouseMove(button, shift, x, y);
    if (own_.SetActiveTool == circularTool) showCircle(x, y);
    if (own_.SetActiveTool == crossTool) showCross(x, y);
    const bool drags = dragging_ && (button & leftButton) != 0;
    if (drags && own_.SetActiveTool == panTool) followPan(x, y);
    if (drags && own_.SetActiveTool == selectTool) showRubber(x, y);
    showRulerLines(x, y);
    window_.shapesChanged();
    raiseTrackPosition(x, y);
}

void PolarGraph::mouseUp(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseUp) events.MouseUp(button, shift, x, y);
    if (button != leftButton || !dragging_) return;
    if (own_.SetActiveTool == selectTool) endRubber();
    dragging_ = false;
}

void PolarGraph::showCircle(float x, float y) {
    const double radius = MathLibrary::Radius(static_cast<double>(x - geometry_.CentreX),
                                              static_cast<double>(y - geometry_.CentreY));
    circleWidth_ = toSingle(2 * radius);
    const auto left = static_cast<int>(std::lround(static_cast<double>(geometry_.CentreX) - radius));
    const auto top = static_cast<int>(std::lround(static_cast<double>(geometry_.CentreY) - radius));
    const auto size = static_cast<int>(std::lround(2 * radius));
    surfaces_.shpCircle = {left, top, size, size, true};
}

void PolarGraph::showCross(float x, float y) {
    surfaces_.linCrossH = {0, whole(y), page_.page, 1, true};
    surfaces_.linCrossV = {whole(x), 0, 1, page_.page, true};
}

void PolarGraph::showRulerLines(float x, float y) {
    const ChildSurface& page = surfaces_.picGraph;
    const int across = page.left + whole(x) - surfaces_.picHolderRH.left;
    const int down = page.top + whole(y) - surfaces_.picHolderRV.top;
    surfaces_.linRulerH = {across, 0, 1, surfaces_.picRulerH.height, true};
    surfaces_.linRulerV = {0, down, surfaces_.picRulerV.width, 1, true};
}

void PolarGraph::pointerLeft() {
    surfaces_.linRulerH.visible = surfaces_.linRulerV.visible = false;
    window_.shapesChanged();
}

/// The page moves with the pointer, so that the point at which the drag began stays under it.
void PolarGraph::followPan(float x, float y) {
    moveTo(page_.OffsetDrawingAreaX + whole(x) - PanStartX_,
           page_.OffsetDrawingAreaY + whole(y) - PanStartY_);
}

void PolarGraph::moveTo(double x, double y) {
    page_.OffsetDrawingAreaX = toInt16(x);
    page_.OffsetDrawingAreaY = toInt16(y);
    changed();
    arrangeChildren();
}

float PolarGraph::withinPage(float place) const {
    return std::clamp(place, 0.0F, static_cast<float>(page_.page - 1));
}

void PolarGraph::showRubber(float x, float y) {
    RubberEndX_ = withinPage(x);
    RubberEndY_ = withinPage(y);
    surfaces_.shpRubber = rectangleOf(RubberStartX_, RubberStartY_, RubberEndX_, RubberEndY_);
}

void PolarGraph::endRubber() {
    surfaces_.shpRubber.visible = false;
    surfaces_.shpSelect = rectangleOf(RubberStartX_, RubberStartY_, RubberEndX_, RubberEndY_);
    window_.shapesChanged();
}

bool PolarGraph::cancelTool() {
    if (dragging_) {
        dragging_ = false;
        surfaces_.shpRubber.visible = false;
        window_.shapesChanged();
        if (own_.SetActiveTool == panTool) moveTo(dragFrom_.x, dragFrom_.y);
        return true;
    }
    if (!surfaces_.shpSelect.visible) return false;
    surfaces_.shpSelect.visible = false;
    window_.shapesChanged();
    return true;
}

void PolarGraph::EditSelectAll() {
    if (ActiveSelection()) return;
    surfaces_.shpSelect = {0, 0, page_.page, page_.page, true};
    window_.shapesChanged();
}

void PolarGraph::rulerPressed(float x, float y) {
    rulerX_ = x;
    rulerY_ = y;
    dragFrom_ = {page_.OffsetDrawingAreaX, page_.OffsetDrawingAreaY};
}

void PolarGraph::rulerDragged(float x, float y) {
    moveTo(dragFrom_.x - whole(rulerX_ - x), dragFrom_.y - whole(rulerY_ - y));
}

void PolarGraph::raiseTrackPosition(float x, float y) {
    if (!events.TrackPosition) return;
    const bool circular = own_.SetActiveTool == circularTool;
    const TrackedPosition at = trackPosition(x, y, geometry_, polar_.Unit,
                                             circular ? std::optional<float>(circleWidth_) : std::nullopt);
    events.TrackPosition(at.x, at.y, at.bearing, at.area, at.circumference, at.diameter, at.radial);
}

}  // namespace zg
