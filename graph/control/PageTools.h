#pragma once

// The tools: the effect of the pointer on the page and on the rulers. They position the shapes above the page
// and never paint on it.

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "graph/control/ControlProperties.h"
#include "graph/control/ControlWindow.h"
#include "graph/control/PageLayout.h"
#include "graph/render/PolarGeometry.h"

namespace zg {

class PageTools {
 public:
    /// Parts of the control that the tools belong to, and which outlives them.
    struct Control {
        ControlWindow& window;
        ChildSurfaces& surfaces;
        const PageLayout& page;
        const PolarGeometry& geometry;
        ControlProperties& properties;
    };
    /// Moves the page's top left corner to that place in the work area, in pixels; raises 6 beyond 16 bits.
    using MovePage = std::function<void(double x, double y)>;

    PageTools(const Control& control, MovePage movePage)
        : control_(control), movePage_(std::move(movePage)) {}

    /// Hides the shapes of the active tool and the selection.
    void end();

    /// Starts the tool of SetActiveTool: the page gets its pointer, and the crosshair is shown at once.
    void begin();

    /// The pointer on the page, in pixels.
    void press(std::int16_t button, float x, float y);
    void move(std::int16_t buttons, float x, float y);
    void release(std::int16_t button);

    /// Like the control's functions of similar names.
    bool cancel();
    void pointerLeft();
    void pressRuler(float x, float y);
    void dragRuler(float x, float y);
    void selectAll();
    bool hasSelection() const;

    /// Width of the displayed circle, in pixels; nothing unless the circular tool is active.
    std::optional<float> circleWidth() const;

 private:
    bool is(std::int32_t tool) const { return control_.properties.SetActiveTool == tool; }
    void showCircle(float x, float y);
    void showCross(float x, float y);
    void showRulerLines(float x, float y);
    void showRubber(float x, float y);
    float withinPage(float place) const;
    void rememberPage();

    Control control_;
    MovePage movePage_;
    bool dragging_ = false;  ///< the button was pressed with the pan or select tool
    std::int32_t PanStartX_ = 0;
    std::int32_t PanStartY_ = 0;
    float RubberStartX_ = 0;
    float RubberStartY_ = 0;
    float RubberEndX_ = 0;
    float RubberEndY_ = 0;
    float rulerX_ = 0;
    float rulerY_ = 0;
    std::int16_t pageX_ = 0;  ///< of the page, at the start of a drag
    std::int16_t pageY_ = 0;
    float circleWidth_ = 0;
};

}  // namespace zg
