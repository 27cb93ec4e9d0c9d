#include "graph/control/PolarGraph.h"
#include "graph/control/TrackPosition.h"

namespace zg {

void PolarGraph::mouseDown(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseDown) events.MouseDown(button, shift, x, y);
}

void PolarGraph::mouseMove(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseMove) events.MouseMove(button, shift, x, y);
    raiseTrackPosition(x, y);
}

void PolarGraph::mouseUp(std::int16_t button, std::int16_t shift, float x, float y) {
    if (events.MouseUp) events.MouseUp(button, shift, x, y);
}

void PolarGraph::raiseTrackPosition(float x, float y) {
    if (!events.TrackPosition) return;
    const TrackedPosition at = trackPosition(x, y, geometry_, polar_.Unit, std::nullopt);
    events.TrackPosition(at.x, at.y, at.bearing, at.area, at.circumference, at.diameter, at.radial);
}

}  // namespace zg
