#pragma once

// One sweep of a curve from its first angle to its last.

#include <functional>
#include <limits>

#include "graph/model/Plot.h"
#include "graph/render/Curve.h"
#include "graph/render/PolarGeometry.h"
#include "graph/script/ScriptEngine.h"

namespace zg {

/// A sampled point: angle in degrees counterclockwise from east, radius in polar units, place in polar units
/// with y downwards, and place on the canvas.
struct CurvePoint {
    float angle = 0;
    float radius = 0;
    double x = 0;
    double y = 0;
    Point onCanvas;
};

/// The angles of a sweep, in single precision as they add up. A step of 0 never ends.
class SweepAngles {
 public:
    explicit SweepAngles(const GrapInfo& graph)
        : angle_(graph.StartingAngle), end_(graph.EndingAngle), step_(graph.Step) {}

    bool done() const { return step_ >= 0 ? angle_ > end_ : angle_ < end_; }
    float angle() const { return angle_; }

    /// Goes on by one step; a step too small to move the angle ends the sweep at once.
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

/// Samples a curve by the script engine. The formula is compiled once.
class CurveSampler {
 public:
    /// Runs the coefficient's statements and compiles the equation; raises the engine's errors.
    CurveSampler(ScriptEngine& engine, const GrapInfo& graph);

    /// The point at an angle; raises what the equation raises, and 6 for a radius beyond a single.
    CurvePoint at(float angle, const PolarGeometry& geometry);

 private:
    ScriptEngine& engine_;
    VariableSlot t_;
    CompiledExpression equation_;
};

/// Paints the points of a sweep one after the other. The canvas is asked for anew at each, since the window
/// may show it meanwhile.
class CurvePainter {
 public:
    CurvePainter(const Series& series, MarkerPictures pictures, const PolarGeometry& geometry)
        : series_(series),
          pictures_(std::move(pictures)),
          centre_{static_cast<double>(geometry.CentreX), static_cast<double>(geometry.CentreY)} {}

    void paint(Canvas& canvas, const CurvePoint& point);

    /// Paints what paint has kept back of the last points.
    void finish(Canvas& canvas);

 private:
    void lineTo(Canvas& canvas, Point point);

    const Series& series_;
    MarkerPictures pictures_;
    Point centre_;
    double length_ = 0;  ///< of what is painted
    bool begun_ = false;
    bool waiting_ = false;
    Point pen_;   ///< end of what is painted
    Point last_;  ///< the point before, which may lie too close to the pen to be seen
};

/// Statements as the engine takes them: trimmed, and closed by ":" unless empty.
std::string coefficientCode(const std::string& coefficient);

}  // namespace zg
