#include "graph/control/EquationCheck.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/control/CurveEvaluator.h"

namespace zg {

std::optional<EquationFault> checkEquation(const std::string& coefficient, const std::string& equation,
                                           ScriptEngine::Clock clock) {
    ScriptEngine engine(std::move(clock));
    prepareForCurves(engine);
    auto where = EquationFault::Where::Coefficient;
    try {
        engine.AddCode(trim(coefficient));
        where = EquationFault::Where::Equation;
        engine.Eval(trim(equation));
    } catch (const ScriptError& error) {
        const bool byZero =
            error.isZeroByZero || error.number == static_cast<int>(ErrorNumber::DivisionByZero);
        if (where == EquationFault::Where::Coefficient || !byZero)
            return EquationFault{where, error.description, error.column};
    }
    return std::nullopt;
}

std::string expressionFault(const std::string& expression, ScriptEngine::Clock clock) {
    ScriptEngine engine(std::move(clock));
    prepareForCurves(engine);
    engine.Timeout(-1);
    try {
        engine.Eval(trim(expression));
    } catch (const ScriptError& error) {
        return error.description;
    }
    return {};
}

}  // namespace zg
