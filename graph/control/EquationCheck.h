#pragma once

#include <optional>
#include <string>

#include "graph/script/ScriptEngine.h"

namespace zg {

/// An error in a curve's texts, found before anything is drawn.
struct EquationFault {
    enum class Where { Coefficient, Equation };
    Where where;
    std::string description;
    int column;  ///< from 1, in characters of the trimmed text
};

/// Runs the coefficient and evaluates the equation once, in a separate engine in which t is Empty. A division
/// by zero, including 0/0, is not an error of the equation: it may occur only at that value of t.
std::optional<EquationFault> checkEquation(const std::string& coefficient, const std::string& equation,
                                           ScriptEngine::Clock clock);

/// The description of the error in a self-contained expression, including any division by zero; "" if there
/// is none. It may run for any length of time.
std::string expressionFault(const std::string& expression, ScriptEngine::Clock clock);

}  // namespace zg
