#include "graph/control/CurveEvaluator.h"

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

/// The engine, after running the statements in it.
ScriptEngine& afterStatements(ScriptEngine& engine, const std::string& statements) {
    if (!statements.empty()) engine.AddCode(statements);
    return engine;
}

}  // namespace

void prepareForCurves(ScriptEngine& engine) {
    engine.Language("VBScript");
    engine.AddObject("MathLib", MathLibrary{});
}

std::string coefficientCode(const std::string& coefficient) {
    std::string code = trim(coefficient);
    if (!code.empty() && code.back() != ':') code += ":";
    return code;
}

CurveEvaluator::CurveEvaluator(ScriptEngine& engine, const std::string& statements,
                               const std::string& equation)
    : engine_(afterStatements(engine, statements)),
      t_(engine_.slot("t")),
      equation_(engine_.compile(equation)) {}

double CurveEvaluator::turnTo(float angle) {
    const double radians = MathLibrary::Radians(static_cast<double>(angle));
    // t has the digits of its text form, as scripts have always received it.
    engine_.setNumber(t_, toDouble(doubleText(radians)));
    return radians;
}

}  // namespace zg
