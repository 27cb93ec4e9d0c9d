#pragma once

// The polar graph control without its toolkit: properties, events, and what repaints when. The widget around
// it is a ControlWindow that lends the surface and obeys the layout.

#include <cstdint>
#include <functional>
#include <string>

#include "base/Host.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/model/Plot.h"
#include "graph/model/Polar.h"
#include "graph/render/Canvas.h"
#include "graph/render/PolarGeometry.h"

namespace zg {

/// Place and visibility of a child surface within the control, in pixels.
struct ChildSurface {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool visible = false;
    bool operator==(const ChildSurface&) const = default;
};

/// What the control needs of the window that shows it.
class ControlWindow {
 public:
    virtual ~ControlWindow() = default;

    /// The page's surface. Its size follows pageResized.
    virtual Canvas& pageCanvas() = 0;

    /// The page has a new size in pixels, at least 1 by 1; its content is repainted after the call.
    virtual void pageResized(int width, int height) = 0;

    /// Places, sizes or visibility of child surfaces changed.
    virtual void layoutChanged() = 0;

    /// What was painted on the page is to be shown.
    virtual void pagePainted() = 0;

    /// The property store has a new value.
    virtual void propertyChanged() = 0;

    /// MousePointer or MouseIcon changed.
    virtual void pointerChanged() = 0;

    virtual void showAbout(const std::string& title) = 0;
};

/// Events towards the host. An empty function is no listener.
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
};

}  // namespace zg
