#pragma once

// The polar graph control without its toolkit: properties, events, and when to repaint. The widget around it
// is a ControlWindow that provides the surface and applies the layout.

#include <cstdint>
#include <exception>
#include <functional>
#include <optional>
#include <string>

#include "base/Host.h"
#include "graph/control/ControlProperties.h"
#include "graph/control/ControlWindow.h"
#include "graph/control/PageLayout.h"
#include "graph/control/PageTools.h"
#include "graph/control/PolarGraphEvents.h"
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

/// What a curve's delay does while the curve is drawn.
enum class CurveSweep {
    AtOnce,     ///< nothing: the whole curve is painted at once
    StepByStep  ///< a pause after each step; events are served meanwhile, until StopAni becomes true
};

/// The control draws the tables that it is given. Each property is a pair of functions of one name; each
/// setter notifies the window's property store, and setters of visible properties repaint.
class PolarGraph {
 public:
    static constexpr const char* cornerToolTip =
        "Left click to reset the drawing area: Right click to change the ruler mode.";

    /// Initialises the tables for a plot without a file (createPolar), arranges the children and paints the
    /// page with the designed properties. The window's functions are called during this. The tables must
    /// outlive the control, which reads them at each redraw. Raises an error for a designed value of the
    /// wrong kind.
    PolarGraph(ControlWindow& window, Host& host, ModPolarGraph& tables, const PropertyBag& designed = {});
    PolarGraph(const PolarGraph&) = delete;
    PolarGraph& operator=(const PolarGraph&) = delete;

    PolarGraphEvents events;

    const ModPolarGraph& tables() const { return tables_; }

    float AspectRatio() const { return settings_.AspectRatio; }
    /// Above 0 and up to 5, rounded to four decimals; any other value is refused with a message and the old
    /// one kept.
    void AspectRatio(float value);

    bool AutoUpdate() const { return own_.AutoUpdate; }
    /// Set at design time only; raises 387.
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
    /// The effect of the mouse on the page: 0 nothing, 1 a circle about the centre, 2 a crosshair, 3 pans, 4
    /// selects. Setting it ends the old tool: its shapes and the selection are hidden.
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

    /// Below a zoom of 100 percent the lines of legend and titles on the shown page become smaller with it,
    /// so that they do not overlap. Copies, saved bitmaps and prints have the fonts as configured. From the
    /// next redraw on.
    void shrinkTexts(bool value) { settings_.Style.shrinkTexts = value; }

    /// Puts the page in the middle of its work area and keeps it there when either changes its size. A page
    /// that is moved, reset to its corner, or too large, is no longer or not centred.
    void keepPageCentred();

    /// Whether a selection is shown that is larger than 1 by 1.
    bool ActiveSelection() const { return tools_.hasSelection(); }

    /// Resets the page to its persistent picture, the rose without curves; tables and objects are unchanged.
    void ClearGraph();

    /// Paints the curve of that number over the page, or all visible ones over the persistent picture. A
    /// curve that takes long serves events: it ends when StopAni becomes true, together with the curves after
    /// it, and raises 32811 beyond the limit of SweepWatch. Raises the script engine's errors once for the
    /// same texts and range of a curve, after painting the other curves; what has been painted remains.
    /// Returns false if StopAni ended a curve that takes long.
    bool DrawGraph(std::optional<std::int16_t> index = std::nullopt, CurveSweep sweep = CurveSweep::AtOnce);

    /// Copies the selection, or the whole page if there is none, to the clipboard.
    void EditCopy();

    /// Saves the whole page as a bitmap, in a file that the user is asked for (cancelling does nothing) or in
    /// the given one. Raises the error of the file, which is then unchanged.
    void EditCopyTo();
    void EditCopyTo(const std::string& path);

    /// Asks for a printer and prints the content of the page at the printer's resolution.
    void SentToPrinter();

    /// Writes the curves to a text file; an error is shown in a box, and the file keeps what has been
    /// written.
    void SaveGraph(const std::string& path);

    /// Loads the file into the tables and refreshes if it was accepted. The result is always 0; see
    /// lastOpenOutcome. Errors in the file reach the caller, with the tables partly filled.
    std::int16_t OpenFreqFile(const std::string& path);

    /// The outcome of the last OpenFreqFile; Refused if it ended in an error.
    FreqFileOutcome lastOpenOutcome() const { return lastOpenOutcome_; }

    void Refresh();

    /// A left click on the corner.
    void ResetDrawingArea();

    void ShowAbout();

    /// All properties that can be stored, under their own names, without Polar and Plot.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    /// While suspended, neither the page nor its curves are repainted, so that several properties can change
    /// before one Refresh.
    void suspendUpdates(bool suspended) { suspended_ = suspended; }

    /// The control has a new inner size in pixels.
    void layout(int width, int height);

    /// New values of the scroll bars, which are kept within their ranges.
    void scrollTo(int horizontal, int vertical);

    /// picRulerJ was pressed: left resets the drawing area, right changes the ruler mode.
    void cornerPressed(std::int16_t button);

    /// A ruler is dragged; the pointer's position is relative to it, in pixels. Either ruler moves the page
    /// along both axes.
    void rulerPressed(float x, float y) { tools_.pressRuler(x, y); }
    void rulerDragged(float x, float y) { tools_.dragRuler(x, y); }

    /// Cancels a drag and undoes its movement; without one, clears the selection. False if there was neither.
    bool cancelTool() { return tools_.cancel(); }

    /// The pointer has left the page: hides the rulers' tracking lines.
    void pointerLeft() { tools_.pointerLeft(); }

    /// Selects the whole page, unless there is a selection.
    void EditSelectAll() { tools_.selectAll(); }

    /// The pointer on the page, in pixels. Each event is first passed on to the host, then the tool acts;
    /// every move then reports the tracked position.
    void mouseDown(std::int16_t button, std::int16_t shift, float x, float y);
    void mouseMove(std::int16_t button, std::int16_t shift, float x, float y);
    void mouseUp(std::int16_t button, std::int16_t shift, float x, float y);

    /// The current content of the ruler along that edge.
    RulerView rulerView(RulerSide side) const;

    const ChildSurfaces& surfaces() const { return surfaces_; }
    const ScrollRange& horizontalScroll() const { return horizontalScroll_; }
    const ScrollRange& verticalScroll() const { return verticalScroll_; }

    /// Of the last redraw; all 0 before the first.
    const PolarGeometry& geometry() const { return geometry_; }

 private:
    void RedrawGraph(std::int16_t mode);
    void drawAll(CurveSweep sweep);
    void tryItem(std::int16_t index, CurveSweep sweep);
    void drawItem(std::int16_t index, CurveSweep sweep);
    void raiseFailure();
    void DrawCurve(const GrapInfo& graph);
    void sweep(const GrapInfo& graph);
    void paintPoints(ScriptEngine& engine, const GrapInfo& curve, const std::function<bool(float)>& goesOn);
    void repaintDuring(const GrapInfo& animated, const GrapInfo& begun, float angle);
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
    void centreUnmovedPage();
    Rect onPage(const ChildSurface& shape) const;
    PicturePointer FillBuffer(bool selectionOnly);
    void print(Canvas& canvas) const;
    void paintConfigured();
    bool showsOtherFonts() const { return configured_ && record_.isComplete(); }
    void replayConfigured(Canvas& canvas) const;
    RecordedCanvas page() { return {window_.pageCanvas(), record_}; }
    void keepPicture();
    MarkerPictures markerPictures(const Series& series);
    void movePageTo(double x, double y);
    void raiseTrackPosition(float x, float y);

    ControlWindow& window_;
    Host& host_;
    ModPolarGraph& tables_;
    ScriptEngine engine_;
    zg::Polar polar_;
    zg::Plot plot_;
    PlotSettings settings_;
    ControlProperties own_;
    PageLayout page_;
    std::optional<PagePlace> centredAt_;  ///< where the page was centred last
    ChildSurfaces surfaces_;
    ScrollRange horizontalScroll_;
    ScrollRange verticalScroll_;
    PolarGeometry geometry_;
    CanvasRecord record_;                     ///< of the page's content
    std::optional<CanvasRecord> configured_;  ///< the page without curves, if its fonts are shown smaller

    PageTools tools_{{window_, surfaces_, page_, geometry_, own_},
                     [this](double x, double y) { movePageTo(x, y); }};

    bool suspended_ = false;
    bool serving_ = false;        ///< events, during a sweep
    bool curvesWanted_ = false;   ///< while it served them
    bool stopped_ = false;        ///< by StopAni, so the following curves are not drawn either
    std::exception_ptr failure_;  ///< of a curve, to be raised when all are painted
    FreqFileOutcome lastOpenOutcome_ = FreqFileOutcome::Refused;
};

}  // namespace zg
