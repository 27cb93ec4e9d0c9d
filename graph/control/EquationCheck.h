#pragma once

#include <optional>
#include <string>

#include "graph/script/ScriptEngine.h"

namespace zg {

/// What is wrong with a curve's texts before anything is drawn.
struct EquationFault {
    enum class Where { Coefficient, Equation };
    Where where;
    std::string description;
    int column;  ///< from 1, in characters of the trimmed text
};

/// Runs the coefficient and evaluates the equation once in an engine of its own, where t is nothing yet.
/// A division by zero, 0/0 included, is no fault of the equation: that value of t may be the only one that
/// hits it.
std::optional<EquationFault> checkEquation(const std::string& coefficient, const std::string& equation,
                                           ScriptEngine::Clock clock);

/// The description of what is wrong with an expression that stands for itself, any division by zero
/// included; "" for a good one. It may run as long as it likes.
std::string expressionFault(const std::string& expression, ScriptEngine::Clock clock);

}  // namespace zg
