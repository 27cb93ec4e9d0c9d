// The pointer on the page: what the host is told, and what the tools do.

#include "base/Numbers.h"
#include "graph/control/PolarGraph.h"
#include "graph/control/TrackPosition.h"

namespace zg {

void PolarGraph::SetActiveTool(std::int32_t value) {
    if (value == own_.SetActiveTool) return;
    tools_.end();
    own_.SetActiveTool = value;
    changed();
    tools_.begin();
}

void PolarGraph::mouseDown(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseDown) events.MouseDown(button, shift, x, y);
    tools_.press(button, x, y);
}

void PolarGraph::mouseMove(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseMove) events.MouseMove(button, shift, x, y);
    tools_.move(button, x, y);
    raiseTrackPosition(x, y);
}

void PolarGraph::mouseUp(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseUp) events.MouseUp(button, shift, x, y);
    tools_.release(button);
}

void PolarGraph::movePageTo(double x, double y) {
    page_.OffsetDrawingAreaX = toInt16(x);
    page_.OffsetDrawingAreaY = toInt16(y);
    changed();
    arrangeChildren();
}

void PolarGraph::raiseTrackPosition(float x, float y) {
    if (!events.TrackPosition) return;
    const TrackedPosition at = trackPosition(x, y, geometry_, polar_.Unit, tools_.circleWidth());
    events.TrackPosition(at.x, at.y, at.bearing, at.area, at.circumference, at.diameter, at.radial);
}

}  // namespace zg
