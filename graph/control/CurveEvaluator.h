#pragma once

// Evaluates a curve r = f(t) with the script engine: its angles, and the equation's value at each.

#include <limits>
#include <string>

#include "graph/model/Plot.h"
#include "graph/script/ScriptEngine.h"

namespace zg {

/// Prepares an engine for the texts of curves: its language, and the library that they call MathLib.
void prepareForCurves(ScriptEngine& engine);

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

/// Evaluates a curve's equation angle by angle. The equation is compiled once; the engine must outlive it.
class CurveEvaluator {
 public:
    /// Runs the coefficient's statements unchanged and compiles the equation; raises the engine's errors.
    CurveEvaluator(ScriptEngine& engine, const std::string& statements, const std::string& equation);

    /// Sets t to an angle, given in degrees counterclockwise from east. Returns t: the angle in radians.
    double turnTo(float angle);

    /// The equation's value for t, evaluated at each call; raises the errors of the equation.
    double radius() { return engine_.evaluateNumber(equation_); }

 private:
    ScriptEngine& engine_;
    VariableSlot t_;
    CompiledExpression equation_;
};

/// The statements of a painted curve's coefficient in the form for the engine: trimmed, and with ":" at the
/// end unless empty.
std::string coefficientCode(const std::string& coefficient);

}  // namespace zg
