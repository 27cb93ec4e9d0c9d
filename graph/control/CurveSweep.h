#pragma once

// One sweep of a curve from its first angle to its last.

#include <functional>
#include <limits>

#include "graph/model/Plot.h"
#include "graph/render/Curve.h"
#include "graph/render/PolarGeometry.h"
#include "graph/script/ScriptEngine.h"

namespace zg {

/// A sampled point: angle in degrees counterclockwise from east, radius in polar units, position in polar
/// units with y downwards, and position on the canvas.
struct CurvePoint {
    float angle = 0;
    float radius = 0;
    double x = 0;
    double y = 0;
    Point onCanvas;
};

/// The angles of a sweep, accumulated in single precision. With a step of 0 it never ends.
class SweepAngles {
 public:
    explicit SweepAngles(const GrapInfo& graph)
        : angle_(graph.StartingAngle), end_(graph.EndingAngle), step_(graph.Step) {}

    bool done() const { return step_ >= 0 ? angle_ > end_ : angle_ < end_; }
    float angle() const { return angle_; }

    /// Advances by one step; a step too small to change the angle ends the sweep at once.
    void advance() {
        const float next = angle_ + step_;
        if (next == angle_ && step_ != 0)
            angle_ =
                step_ > 0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
        else
            angle_ = next;
    }

 private:
    float angle_;
    float end_;
    float step_;
};

/// Samples a curve with the script engine. The formula is compiled once.
class CurveSampler {
 public:
    /// Runs the coefficient's statements and compiles the equation; raises the engine's errors.
    CurveSampler(ScriptEngine& engine, const GrapInfo& graph);

    /// The point at an angle; raises the errors of the equation, and 6 for a radius beyond a single.
    CurvePoint at(float angle, const PolarGeometry& geometry);

 private:
    ScriptEngine& engine_;
    VariableSlot t_;
    CompiledExpression equation_;
};

/// Paints the points of a sweep one after the other. The canvas is requested for each point, since the window
/// may display it in between.
class CurvePainter {
 public:
    CurvePainter(const Series& series, MarkerPictures pictures, const PolarGeometry& geometry)
        : series_(series),
          pictures_(std::move(pictures)),
          centre_{static_cast<double>(geometry.CentreX), static_cast<double>(geometry.CentreY)} {}

    void paint(Canvas& canvas, const CurvePoint& point);

    /// Paints the last points, which paint may have held back.
    void finish(Canvas& canvas);

 private:
    void lineTo(Canvas& canvas, Point point);

    const Series& series_;
    MarkerPictures pictures_;
    Point centre_;
    double length_ = 0;  ///< of what has been painted
    bool begun_ = false;
    bool waiting_ = false;
    Point pen_;   ///< end of what has been painted
    Point last_;  ///< the previous point, which may be too close to the pen to be visible
};

/// Statements in the form for the engine: trimmed, and with ":" at the end unless empty.
std::string coefficientCode(const std::string& coefficient);

}  // namespace zg
