#include "graph/control/PolarGraph.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "graph/control/CreatePolar.h"
#include "graph/control/CurveEvaluator.h"
#include "graph/render/RedrawGraph.h"

namespace zg {

namespace {

constexpr std::int16_t curvesAndRulers = 3;

}  // namespace

PolarGraph::PolarGraph(ControlWindow& window, Host& host, ModPolarGraph& tables, const PropertyBag& designed)
    : window_(window),
      host_(host),
      tables_(tables),
      engine_([this] { return host_.tickCount(); }),
      polar_(createPolar(tables)) {
    prepareForCurves(engine_);
    ReadProperties(designed);
}

void PolarGraph::AspectRatio(float value) {
    const auto refuse = [this](const char* text) {
        host_.showBox({text, "Polar Graph", BoxIcon::Warning, BoxButtons::Ok});
    };
    if (!(value > 0)) return refuse("The AspectRatio value must be greater than 0.");
    if (!(value <= 5)) return refuse("The AspectRatio value must be less than or equal to 5.");
    const float rounded = toSingle(roundHalfEven(static_cast<double>(value), 4));
    settings_.AspectRatio = rounded == 0 ? 0.0001F : rounded;
    changedOnPage();
}

void PolarGraph::AutoUpdate(bool) { raise(ErrorNumber::SetNotPermitted); }

void PolarGraph::BackColor(Colour value) {
    settings_.BackColor = value;
    changedOnPage();
}

void PolarGraph::Comment(const std::string& value) {
    own_.Comment = value;
    changed();
}

void PolarGraph::MouseIcon(PicturePointer value) {
    own_.MouseIcon = std::move(value);
    window_.pointerChanged();
    changed();
}

void PolarGraph::MousePointer(std::int16_t value) {
    own_.MousePointer = value;
    window_.pointerChanged();
    changed();
}

void PolarGraph::Picture(PicturePointer value) {
    settings_.Picture = std::move(value);
    changed();
    if (settings_.Picture) RedrawGraph(curvesAndRulers);
}

void PolarGraph::PictureStyle(std::int32_t value) {
    settings_.PictureStyle = value;
    changed();
    if (settings_.Picture) RedrawGraph(curvesAndRulers);
}

void PolarGraph::Polar(const zg::Polar& value) {
    polar_ = value;
    changed();
}

void PolarGraph::Plot(zg::Plot value) {
    plot_ = std::move(value);
    changed();
}

void PolarGraph::SetRulerMode(std::int32_t value) {
    own_.SetRulerMode = value;
    window_.rulersChanged();
    changed();
}

void PolarGraph::ShowCoordinateSystem(bool value) {
    settings_.ShowCoordinateSystem = value;
    changedOnPage();
}

void PolarGraph::ShowGrid(std::int32_t value) {
    settings_.ShowGrid = value;
    changedOnPage();
}

void PolarGraph::ShowLabel(bool value) {
    settings_.ShowLabel = value;
    changedOnPage();
}

void PolarGraph::ShowLegend(bool value) {
    settings_.ShowLegend = value;
    changedOnPage();
}

void PolarGraph::StopAni(bool value) {
    own_.StopAni = value;
    changed();
}

void PolarGraph::ClearGraph() {
    if (window_.restorePicture()) {
        record_.restore();
    } else {
        configured_.reset();
        page().clear(settings_.BackColor);
    }
    window_.pagePainted();
}

std::int16_t PolarGraph::OpenFreqFile(const std::string& path) {
    lastOpenOutcome_ = FreqFileOutcome::Refused;
    lastOpenOutcome_ = loadFreqFile(path, tables_, host_);
    if (lastOpenOutcome_ == FreqFileOutcome::Loaded) Refresh();
    return 0;
}

void PolarGraph::Refresh() { RedrawGraph(curvesAndRulers); }

void PolarGraph::ShowAbout() { window_.showAbout("About"); }

void PolarGraph::RedrawGraph(std::int16_t mode) {
    if (!own_.AutoUpdate || suspended_) return;
    try {
        paintConfigured();
        RecordedCanvas canvas = page();
        redrawFrame(settings_, polar_, tables_, canvas, geometry_);
    } catch (...) {
        keepPicture();  // after an error, the page shows what was painted until then
        throw;
    }
    keepPicture();
    const AfterFrame after = afterFrame(mode);
    if (after.curves && !isPutOff()) drawAll(CurveSweep::AtOnce);
    if (after.rulers) window_.rulersChanged();
    raiseFailure();
}

/// The page is painted at once again, smaller.
void PolarGraph::paintConfigured() {
    constexpr std::int16_t fullZoom = 100;
    configured_.reset();
    if (!settings_.Style.shrinkTexts || settings_.Zoom >= fullZoom) return;
    PlotSettings settings = settings_;
    settings.Style.shrinkTexts = false;
    RecordedCanvas canvas(window_.pageCanvas(), configured_.emplace());
    try {
        redrawFrame(settings, polar_, tables_, canvas, geometry_);
    } catch (const RunTimeError&) {
        configured_.reset();  // that page has the same error, and raises it
    }
}

void PolarGraph::keepPicture() {
    record_.keep();
    window_.keepPicture();
    window_.pagePainted();
}

void PolarGraph::changedOnPage() {
    changed();
    RedrawGraph(curvesAndRulers);
}

}  // namespace zg
