#include "graph/control/CurveSweep.h"

#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

/// Points closer than this to the end of the line change no pixel; a million of them would only cost time.
constexpr double smallestMove = 0.1;

}  // namespace

std::string coefficientCode(const std::string& coefficient) {
    std::string code = trim(coefficient);
    if (!code.empty() && code.back() != ':') code += ":";
    return code;
}

namespace {

/// The engine, after running the coefficient's statements in it.
ScriptEngine& prepared(ScriptEngine& engine, const std::string& coefficient) {
    if (const std::string code = coefficientCode(coefficient); !code.empty()) engine.AddCode(code);
    return engine;
}

}  // namespace

CurveSampler::CurveSampler(ScriptEngine& engine, const GrapInfo& graph)
    : engine_(prepared(engine, graph.Coefficient)),
      t_(engine_.slot("t")),
      equation_(engine_.compile(graph.Equation)) {}

CurvePoint CurveSampler::at(float angle, const PolarGeometry& geometry) {
    const double radians = MathLibrary::Radians(static_cast<double>(angle));
    // t has the digits of its text form, as scripts have always received it.
    engine_.setNumber(t_, toDouble(doubleText(radians)));
    CurvePoint point;
    point.angle = angle;
    point.radius = toSingle(engine_.evaluateNumber(equation_));
    point.x = static_cast<double>(point.radius) * std::cos(radians);
    point.y = -static_cast<double>(point.radius) * std::sin(radians);
    const auto unit = static_cast<double>(geometry.UnitLength);
    point.onCanvas = {static_cast<double>(geometry.CentreX) + point.x * unit,
                      static_cast<double>(geometry.CentreY) + point.y * unit};
    return point;
}

void CurvePainter::lineTo(Canvas& canvas, Point point) {
    if (series_.Pen.AllowShading) paintShading(canvas, centre_, pen_, point, series_.Pen);
    if (series_.Pen.AllowConVertices) paintSegment(canvas, pen_, point, series_.Pen, length_);
    length_ += std::hypot(point.x - pen_.x, point.y - pen_.y);
    pen_ = point;
    waiting_ = false;
}

void CurvePainter::paint(Canvas& canvas, const CurvePoint& point) {
    if (series_.AllowPen) {
        if (!begun_) {
            pen_ = point.onCanvas;
        } else if (std::abs(point.onCanvas.x - pen_.x) + std::abs(point.onCanvas.y - pen_.y) >=
                   smallestMove) {
            lineTo(canvas, point.onCanvas);
        } else {
            waiting_ = true;
        }
        last_ = point.onCanvas;
        begun_ = true;
    }
    if (series_.AllowMarker) paintMarker(canvas, point.onCanvas, series_.Marker, pictures_);
}

void CurvePainter::finish(Canvas& canvas) {
    if (waiting_) lineTo(canvas, last_);
}

}  // namespace zg
