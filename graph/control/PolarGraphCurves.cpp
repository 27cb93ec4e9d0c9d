// Curves r = f(t): painting them all or one, at once or step by step.

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

#include "base/AtEnd.h"
#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "graph/control/CurveEvaluator.h"
#include "graph/control/PolarGraph.h"
#include "graph/control/SweepWatch.h"

namespace zg {

namespace {

constexpr int pumpMilliseconds = 5;

/// In polar units, y downwards as on the canvas.
Point polarPoint(float radius, double radians) {
    return {static_cast<double>(radius) * std::cos(radians),
            -static_cast<double>(radius) * std::sin(radians)};
}

std::string trackText(float angle) {
    return "Angle : " + doubleText(roundHalfEven(static_cast<double>(angle))) + "\xC2\xB0";
}

}  // namespace

bool PolarGraph::DrawGraph(std::optional<std::int16_t> index, CurveSweep sweep) {
    if (suspended_ || isPutOff()) return true;
    if (index) {
        tryItem(*index, sweep);
        if (!curvesWanted_ || stopped_) {
            raiseFailure();
            return !stopped_;
        }
    }
    // Otherwise a curve that has been hidden, changed or removed since would stay on the page.
    ClearGraph();
    drawAll(index ? CurveSweep::AtOnce : sweep);
    raiseFailure();
    return !stopped_;
}

/// Curves requested while a long sweep serves events would share its engine and its page: they wait until it
/// has ended, and then all are drawn.
bool PolarGraph::isPutOff() {
    curvesWanted_ = serving_;
    stopped_ = false;
    return serving_;
}

void PolarGraph::drawAll(CurveSweep sweep) {
    do {
        if (curvesWanted_) ClearGraph();
        curvesWanted_ = false;
        const std::int32_t count = plot_.Count();
        for (std::int32_t i = 1; i <= std::min(count, plot_.Count()) && !curvesWanted_ && !stopped_; ++i)
            tryItem(toInt16(static_cast<double>(i)), sweep);
    } while (curvesWanted_ && !stopped_);
}

/// A curve that fails is painted up to that point, and the others are painted nevertheless. Its error is
/// raised after them, and not again while its texts and its range are the same.
void PolarGraph::tryItem(std::int16_t index, CurveSweep sweep) {
    GrapInfo& graph = plot_.Item(static_cast<std::int64_t>(index));
    if (!graph.Visible) return;
    try {
        drawItem(index, sweep);
        if (plot_.contains(graph)) {
            graph.Failure.clear();
            graph.ToldFailure.clear();
        }
    } catch (const RunTimeError& error) {
        if (!plot_.contains(graph)) throw;
        graph.Failure = error.description;
        const std::string failed = sweepText(graph);
        if (graph.ToldFailure != failed && !failure_) failure_ = std::current_exception();
        graph.ToldFailure = failed;
    }
    if (events.CurveEnded) events.CurveEnded(index);
}

void PolarGraph::raiseFailure() {
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void PolarGraph::drawItem(std::int16_t index, CurveSweep sweep) {
    if (events.BeforeGraph) events.BeforeGraph(index);
    // The host may have changed the list or the number.
    GrapInfo& graph = plot_.Item(static_cast<std::int64_t>(index));
    const std::int16_t delay = graph.Delay;
    if (sweep == CurveSweep::AtOnce) graph.Delay = 0;
    const AtEnd putBack([this, &graph, delay] {
        if (plot_.contains(graph)) graph.Delay = delay;
    });
    DrawCurve(graph);
}

void PolarGraph::raiseDrawBegin(bool value) {
    if (events.DrawBegin) events.DrawBegin(value);
}

void PolarGraph::showTrackAngle(const std::string& text) {
    surfaces_.lblTrackAngle.visible = !text.empty();
    window_.trackAngleChanged(text);
}

void PolarGraph::DrawCurve(const GrapInfo& graph) {
    raiseDrawBegin(false);
    const bool animated = graph.Delay > 0;
    const bool endless = graph.Step == 0;
    const bool stoodStill = own_.StopAni;
    if (animated || endless) own_.StopAni = false;
    if (animated) showTrackAngle("Angle : 0\xC2\xB0");
    const AtEnd done([this, animated, endless, stoodStill] {
        if (animated || endless || stoodStill) own_.StopAni = true;
        window_.pagePainted();
        raiseDrawBegin(true);
        if (animated) showTrackAngle({});
    });
    sweep(graph);
}

void PolarGraph::sweep(const GrapInfo& graph) {
    // The host may change or remove the curve while events are served: the sweep continues with its initial
    // values.
    const GrapInfo curve = graph;
    if (curve.Delay > 0 || curve.Step == 0)
        return paintPoints(engine_, curve, [&](float angle) {
            const bool goesOn = waitForNextStep(curve.Delay, angle);
            if (goesOn && std::exchange(curvesWanted_, false)) repaintDuring(graph, curve, angle);
            return goesOn;
        });
    SweepWatch watch([this] { return host_.tickCount(); }, [this] { return serveSweep(); });
    const auto look = [&watch](float) {
        watch.look();
        return true;
    };
    try {
        sweepUnderWatch(engine_, watch, curve.Equation, [&] { paintPoints(engine_, curve, look); });
    } catch (const SweepStopped&) {
        stopped_ = own_.StopAni;
    }
}

void PolarGraph::paintPoints(ScriptEngine& engine, const GrapInfo& curve,
                             const std::function<bool(float)>& goesOn) {
    CurveEvaluator equation(engine, coefficientCode(curve.Coefficient), curve.Equation);
    CurvePainter painter(curve.Series, markerPictures(curve.Series), geometry_);
    const auto finish = [&] {
        RecordedCanvas canvas = page();
        painter.finish(canvas);
    };
    try {
        for (SweepAngles angles(curve); !angles.done(); angles.advance()) {
            const double radians = equation.turnTo(angles.angle());
            const float radius = toSingle(equation.radius());
            const Point point = polarPoint(radius, radians);
            RecordedCanvas canvas = page();
            painter.paint(canvas, geometry_.onCanvas(point));
            if (events.DrawProgress)
                events.DrawProgress(angles.angle(), radius, static_cast<float>(point.x),
                                    static_cast<float>(point.y), curve.EndingAngle);
            if (!goesOn(angles.angle())) break;
        }
    } catch (const SweepStopped&) {
        // Otherwise whatever ended it redraws the page.
        if (own_.StopAni) finish();
        throw;
    }
    finish();
}

/// Curves requested during an animation are painted without ending it: the others whole, the animated one as
/// far as it has come. They share an engine of their own, since the animation goes on with its own variables.
/// A curve that fails here is told of when it is painted by itself.
void PolarGraph::repaintDuring(const GrapInfo& animated, const GrapInfo& begun, float angle) {
    auto progress = std::exchange(events.DrawProgress, {});
    const AtEnd putBack([this, &progress] { events.DrawProgress = std::move(progress); });
    ClearGraph();
    ScriptEngine engine;
    prepareForCurves(engine);
    for (std::int32_t i = 1; i <= plot_.Count(); ++i) {
        const GrapInfo& item = plot_.Item(std::int64_t{i});
        const bool isAnimated = &item == &animated;
        GrapInfo curve = isAnimated ? begun : item;
        if (isAnimated) curve.EndingAngle = angle;
        if (!curve.Visible || curve.Step == 0) continue;
        SweepWatch watch([this] { return host_.tickCount(); });
        const auto look = [&watch](float) {
            watch.look();
            return true;
        };
        try {
            sweepUnderWatch(engine, watch, curve.Equation, [&] { paintPoints(engine, curve, look); });
        } catch (const RunTimeError&) {
            continue;
        }
    }
    window_.pagePainted();
}

/// Displays the progress of a long sweep and serves events; false if the sweep is to end. StopAni is False
/// meanwhile, as during an animation.
bool PolarGraph::serveSweep() {
    window_.pagePainted();
    own_.StopAni = false;
    serving_ = true;
    const AtEnd served([this] { serving_ = false; });
    host_.pumpEvents(0);
    return !own_.StopAni && !curvesWanted_;
}

/// Serves events until the delay has passed; false if the sweep is to end.
bool PolarGraph::waitForNextStep(std::int16_t delay, float angle) {
    if (delay > 0) {
        window_.pagePainted();
        showTrackAngle(trackText(angle));
    }
    const std::int64_t start = host_.tickCount();
    const double wait = MathLibrary::Milliseconds(delay) * 1000;
    do {
        if (own_.StopAni) return false;
        serving_ = true;
        const AtEnd served([this] { serving_ = false; });
        host_.pumpEvents(delay > 0 ? pumpMilliseconds : 0);
    } while (static_cast<double>(host_.tickCount() - start) < wait);
    return !own_.StopAni;
}

}  // namespace zg
