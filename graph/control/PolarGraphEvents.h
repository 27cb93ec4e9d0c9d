#pragma once

#include <cstdint>
#include <functional>

namespace zg {

/// Mouse buttons as numbered in the events.
constexpr std::int16_t leftButton = 1;
constexpr std::int16_t rightButton = 2;

/// Events to the host. An empty function means no listener.
struct PolarGraphEvents {
    std::function<void(bool& value)> DrawBegin;
    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void(std::int16_t& index)> BeforeGraph;
    std::function<void(std::int16_t& keyCode, std::int16_t shift)> KeyDown;
    std::function<void(std::int16_t& keyAscii)> KeyPress;
    std::function<void(std::int16_t& keyCode, std::int16_t shift)> KeyUp;
    std::function<void(float x, float y, float bearing, float area, float circumference, float diameter,
                       float radial)>
        TrackPosition;
    std::function<void(std::int16_t button, std::int16_t shift, float x, float y)> MouseDown;
    std::function<void(std::int16_t button, std::int16_t shift, float x, float y)> MouseMove;
    std::function<void(std::int16_t button, std::int16_t shift, float x, float y)> MouseUp;
    std::function<void(float angle, float radius, float x, float y, float portion)> DrawProgress;
    std::function<void(std::int16_t index)> CurveEnded;  ///< painted, or failed: see GrapInfo::Failure
};

}  // namespace zg
