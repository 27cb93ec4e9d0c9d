#pragma once

// The polar graph control without its toolkit: properties, events, and what repaints when. The widget around
// it is a ControlWindow that lends the surface and obeys the layout.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/Host.h"
#include "graph/control/PageLayout.h"
#include "graph/control/PropertyBag.h"
#include "graph/control/Rulers.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/model/Plot.h"
#include "graph/model/Polar.h"
#include "graph/render/CanvasRecord.h"
#include "graph/render/Curve.h"
#include "graph/render/PlotSettings.h"
#include "graph/render/PolarGeometry.h"
#include "graph/script/ScriptEngine.h"

namespace zg {

/// What the control needs of the window that shows it.
class ControlWindow {
 public:
    virtual ~ControlWindow() = default;

    /// The page's surface, good until the next pageResized or pagePainted. Its size follows pageResized.
    virtual Canvas& pageCanvas() = 0;

    /// The page has a new size in pixels, at least 1 by 1; its content is repainted after the call.
    virtual void pageResized(int width, int height) = 0;

    /// Places, sizes or visibility of child surfaces changed.
    virtual void layoutChanged() = 0;

    /// Shapes of the tools, or the tracking lines of the rulers, changed.
    virtual void shapesChanged() = 0;

    /// The rulers are to be painted again.
    virtual void rulersChanged() = 0;

    /// What is on the page now is its persistent picture, until the page gets another size or another one.
    virtual void keepPicture() = 0;

    /// The page shows its persistent picture again; false where it has none.
    virtual bool restorePicture() = 0;

    /// What was painted on the page is to be shown.
    virtual void pagePainted() = 0;

    /// The property store has a new value.
    virtual void propertyChanged() = 0;

    /// MousePointer or MouseIcon changed.
    virtual void pointerChanged() = 0;

    /// A copy of that part of what was painted on the page, one pixel a scale unit, without the tools'
    /// shapes; null for an empty part.
    virtual PicturePointer copyPage(const Rect& part) = 0;

    /// The clipboard holds nothing but the picture.
    virtual void pictureToClipboard(const Picture& picture) = 0;

    /// Replaces the file by the picture as an uncompressed bitmap; raises the error of the file, which then
    /// is what it was.
    virtual void saveBitmap(const Picture& picture, const std::string& path) = 0;

    /// Asks for a printer and, unless that is cancelled, has one page painted on it: a square of that many
    /// scale units, as large as the paper takes and centred. Raises 482, "Printer error".
    virtual void print(double side, const std::function<void(Canvas&)>& paint) = 0;

    virtual void showAbout(const std::string& title) = 0;

    /// lblTrackAngle has a new text; an empty one hides it.
    virtual void trackAngleChanged(const std::string& text) = 0;

    /// The picture of a file; null where there is none or it is no picture.
    virtual PicturePointer loadPicture(const std::string& path) = 0;
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

/// Properties that neither drawing nor placing reads, under their names and with a new control's values.
struct ControlProperties {
    bool AutoUpdate = true;
    std::string Comment;
    PicturePointer MouseIcon;
    std::int16_t MousePointer = 0;
    std::int32_t SetActiveTool = 0;
    std::int32_t SetRulerMode = 1;
    bool StopAni = true;
};

/// Mouse buttons as the events number them.
constexpr std::int16_t leftButton = 1;
constexpr std::int16_t rightButton = 2;

/// The control draws modPolarGraph's tables. Each property is a pair of functions of one name; each setter
/// tells the window of its property store, and those of what is on the page repaint it.
class PolarGraph {
 public:
    static constexpr const char* cornerToolTip =
        "Left click to reset the drawing area: Right click to change the ruler mode.";

    /// Arranges the children and paints the page with the designed properties. The window is called while
    /// this runs. Raises what a designed value of the wrong kind raises.
    PolarGraph(ControlWindow& window, Host& host, const PropertyBag& designed = {});
    PolarGraph(const PolarGraph&) = delete;
    PolarGraph& operator=(const PolarGraph&) = delete;

    PolarGraphEvents events;

    float AspectRatio() const { return settings_.AspectRatio; }
    /// Above 0 and up to 5; another value is refused with a message and the old one stays. Four decimals.
    void AspectRatio(float value);

    bool AutoUpdate() const { return own_.AutoUpdate; }
    /// Chosen at design time; raises 387.
    void AutoUpdate(bool value);

    Colour BackColor() const { return settings_.BackColor; }
    void BackColor(Colour value);

    const std::string& Comment() const { return own_.Comment; }
    void Comment(const std::string& value);

    std::int16_t OffsetDrawingAreaX() const { return page_.OffsetDrawingAreaX; }
    void OffsetDrawingAreaX(std::int16_t value);
    std::int16_t OffsetDrawingAreaY() const { return page_.OffsetDrawingAreaY; }
    void OffsetDrawingAreaY(std::int16_t value);

    PicturePointer MouseIcon() const { return own_.MouseIcon; }
    void MouseIcon(PicturePointer value);
    std::int16_t MousePointer() const { return own_.MousePointer; }
    void MousePointer(std::int16_t value);

    PicturePointer Picture() const { return settings_.Picture; }
    void Picture(PicturePointer value);
    std::int32_t PictureStyle() const { return settings_.PictureStyle; }
    void PictureStyle(std::int32_t value);

    zg::Polar& Polar() { return polar_; }
    const zg::Polar& Polar() const { return polar_; }
    void Polar(const zg::Polar& value);
    zg::Plot& Plot() { return plot_; }
    const zg::Plot& Plot() const { return plot_; }
    void Plot(zg::Plot value);

    std::int32_t ScrollBars() const { return page_.ScrollBars; }
    void ScrollBars(std::int32_t value);

    std::int32_t SetActiveTool() const { return own_.SetActiveTool; }
    /// What the mouse does on the page: 0 nothing, 1 a circle about the centre, 2 a crosshair, 3 pans, 4
    /// selects. A new value ends the old tool: its shapes and the selection are hidden.
    void SetActiveTool(std::int32_t value);

    std::int32_t SetRulerMode() const { return own_.SetRulerMode; }
    void SetRulerMode(std::int32_t value);

    bool ShowCoordinateSystem() const { return settings_.ShowCoordinateSystem; }
    void ShowCoordinateSystem(bool value);
    std::int32_t ShowGrid() const { return settings_.ShowGrid; }
    void ShowGrid(std::int32_t value);
    bool ShowLabel() const { return settings_.ShowLabel; }
    void ShowLabel(bool value);
    bool ShowLegend() const { return settings_.ShowLegend; }
    void ShowLegend(bool value);
    bool ShowRuler() const { return page_.ShowRuler; }
    void ShowRuler(bool value);

    bool StopAni() const { return own_.StopAni; }
    void StopAni(bool value);

    std::int16_t Zoom() const { return settings_.Zoom; }
    void Zoom(std::int16_t value);

    /// A selection is shown and does not measure 1 by 1.
    bool ActiveSelection() const;

    /// Clears the page down to its persistent picture, the rose without curves; tables and objects stay.
    void ClearGraph();

    /// Paints the curve of that number over what is on the page, or all of them over the persistent picture,
    /// where they are visible. Instantly false paints each
    /// at once whatever its delay; true lets those with a delay sweep step by step, with events served
    /// meanwhile, until StopAni becomes true. One that takes long serves events too: it ends when StopAni
    /// becomes true, the curves after it with it, and raises 32811 beyond the limit of SweepWatch. Raises the
    /// script engine's errors; what was painted until then stays. False where StopAni ended one that takes
    /// long.
    bool DrawGraph(std::optional<std::int16_t> index = std::nullopt, bool instantly = false);

    /// The selection, or the whole page without one, goes to the clipboard.
    void EditCopy();

    /// The whole page becomes a bitmap file: one that is asked for (cancelling ends it silently), or that
    /// one. Raises the error of the file, which then is what it was.
    void EditCopyTo();
    void EditCopyTo(const std::string& path);

    /// Asks for a printer and prints what is on the page, at the printer's resolution.
    void SentToPrinter();

    /// Writes the curves as a text file; an error is told in a box, and the file stays as far as it was
    /// written.
    void SaveGraph(const std::string& path);

    /// Loads the file into the tables and, if it was accepted, refreshes. The result is always 0; see
    /// lastOpenOutcome. Errors of a broken file reach the caller with the tables partly filled.
    std::int16_t OpenFreqFile(const std::string& path);

    /// What became of the last OpenFreqFile; Refused where it ended in an error.
    FreqFileOutcome lastOpenOutcome() const { return lastOpenOutcome_; }

    void Refresh();

    /// A left click on the corner.
    void ResetDrawingArea();

    void ShowAbout();

    /// All properties that can be kept, under their own names. Polar and Plot are no part of it.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    /// While suspended nothing repaints, neither the page nor its curves, so that several properties can
    /// change under one Refresh.
    void suspendUpdates(bool suspended) { suspended_ = suspended; }

    /// The control's inner size in pixels is new.
    void layout(int width, int height);

    /// The scroll bars' values are new; kept within their ranges.
    void scrollTo(int horizontal, int vertical);

    /// picRulerJ was pressed: left resets the drawing area, right changes the ruler mode.
    void cornerPressed(std::int16_t button);

    /// A ruler is dragged: the pointer's place in it, in pixels. Either ruler moves the page along both axes.
    void rulerPressed(float x, float y);
    void rulerDragged(float x, float y);

    /// Ends a drag and puts back what it moved; without one, drops the selection. False where there was
    /// neither.
    bool cancelTool();

    /// The pointer has left the page: the rulers' tracking lines go.
    void pointerLeft();

    /// The selection takes the whole page, unless there is one already.
    void EditSelectAll();

    /// The pointer on the page, in its pixels. Each is passed on to the host first, then the tool acts; every
    /// move then tells the tracked position.
    void mouseDown(std::int16_t button, std::int16_t shift, float x, float y);
    void mouseMove(std::int16_t button, std::int16_t shift, float x, float y);
    void mouseUp(std::int16_t button, std::int16_t shift, float x, float y);

    /// What the ruler along that edge shows now.
    RulerView rulerView(RulerSide side) const;

    const ChildSurfaces& surfaces() const { return surfaces_; }
    const ScrollRange& horizontalScroll() const { return horizontalScroll_; }
    const ScrollRange& verticalScroll() const { return verticalScroll_; }

    /// Of the last redraw; all 0 before the first.
    const PolarGeometry& geometry() const { return geometry_; }

 private:
    void RedrawGraph(std::int16_t mode);
    void drawAll(bool instantly);
    void drawItem(std::int16_t index, bool instantly);
    void DrawCurve(const GrapInfo& graph);
    void sweep(const GrapInfo& graph);
    void paintPoints(const GrapInfo& curve, const std::function<bool(float)>& goesOn);
    bool serveSweep();
    bool isPutOff();
    bool waitForNextStep(std::int16_t delay, float angle);
    void raiseDrawBegin(bool value);
    void showTrackAngle(const std::string& text);
    void changed() { window_.propertyChanged(); }
    void changedOnPage();
    void resizePage();
    void movePage();
    void arrangeChildren();
    Rect onPage(const ChildSurface& shape) const;
    PicturePointer FillBuffer(bool selectionOnly);
    void print(Canvas& canvas) const;
    RecordedCanvas page() { return {window_.pageCanvas(), record_}; }
    void keepPicture();
    MarkerPictures markerPictures(const Series& series);
    void endTool();
    void beginTool();
    void showCross(float x, float y);
    void showRulerLines(float x, float y);
    void showCircle(float x, float y);
    void followPan(float x, float y);
    void showRubber(float x, float y);
    void endRubber();
    void moveTo(double x, double y);
    float withinPage(float place) const;
    void raiseTrackPosition(float x, float y);

    ControlWindow& window_;
    Host& host_;
    ScriptEngine engine_;
    zg::Polar polar_;
    zg::Plot plot_;
    PlotSettings settings_;
    ControlProperties own_;
    PageLayout page_;
    ChildSurfaces surfaces_;
    ScrollRange horizontalScroll_;
    ScrollRange verticalScroll_;
    PolarGeometry geometry_;
    CanvasRecord record_;  ///< of what is on the page

    struct Place {
        std::int16_t x = 0;
        std::int16_t y = 0;
    };
    std::int32_t PanStartX_ = 0;
    std::int32_t PanStartY_ = 0;
    float RubberStartX_ = 0;
    float RubberStartY_ = 0;
    float RubberEndX_ = 0;
    float RubberEndY_ = 0;
    float circleWidth_ = 0;
    bool dragging_ = false;  ///< the button went down with the tool pan or select
    Place dragFrom_;         ///< of the page, when a drag began
    float rulerX_ = 0;
    float rulerY_ = 0;

    bool suspended_ = false;
    bool serving_ = false;       ///< events, in the middle of a sweep
    bool curvesWanted_ = false;  ///< while it served them
    bool stopped_ = false;       ///< by StopAni: the curves that follow are not drawn either
    FreqFileOutcome lastOpenOutcome_ = FreqFileOutcome::Refused;
};

}  // namespace zg
