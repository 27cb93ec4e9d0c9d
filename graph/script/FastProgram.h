#pragma once

// The expressions of a sweep are almost always plain arithmetic on doubles. Such an expression gets a second
// form that knows no other kind of value; where a value or a result is out of the ordinary it gives up, and
// the machine says what is wrong.

#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "graph/script/Program.h"
#include "graph/script/Symbols.h"

namespace zg {

class FastProgram {
 public:
    /// The fast form of an expression; nothing where the expression needs more than arithmetic.
    static std::optional<FastProgram> of(const Chunk& chunk);

    /// Evaluates; false where the machine has to look, because a variable is no plain number or a result is
    /// none.
    bool run(const SymbolTable& symbols, double& result) const {
        if (shape_ == Shape::General) return runSteps(symbols, result);
        if (shape_ == Shape::Constant) {
            result = steps_.front().k;
            return true;
        }
        const Value& value = symbols[variables_.front()].value;
        if (!isPlainNumber(value.kind)) return false;
        result = value.number;
        if (shape_ == Shape::Square) result *= result;
        if (shape_ == Shape::Sine) result = std::sin(result * steps_.front().k);
        return std::isfinite(result);
    }

 private:
    enum class Code : std::uint8_t {
        Constant,
        Variable,
        VariableTimes,  ///< variable x k, in one step as the next three
        VariablePlus,
        VariableSquare,
        SinOfVariable,  ///< sin(variable x k)
        CosOfVariable,
        Negate,
        Add,
        Subtract,
        Multiply,
        Divide,
        Power,
        AddVariable,
        SubtractVariable,
        TimesVariable,
        TimesVariablePlus,  ///< times (variable + k)
        AddConstant,
        ConstantMinus,
        TimesConstant,
        DivideByConstant,
        ConstantOver,
        Square,
        WholePower,
        Abs,
        Atn,
        Cos,
        Exp,
        Int,
        Fix,
        Log,
        Sgn,
        Sin,
        Sqr,
        Tan,
        MathPower,
        MathRadius,
        Function
    };
    struct Step {
        Code code = Code::Constant;
        std::int32_t a = 0;  ///< variable, exponent, or operation of MathLib
        double k = 0;
    };
    static constexpr std::size_t deepestStack = 32;
    static constexpr std::size_t mostVariables = 8;

    /// Expressions so short that the loop over the steps would be most of the work.
    enum class Shape : std::uint8_t { Constant, Variable, Square, Sine, General };

    static bool isPlainNumber(Kind kind) {
        constexpr unsigned plainKinds =
            1U << static_cast<unsigned>(Kind::Empty) | 1U << static_cast<unsigned>(Kind::Boolean) |
            1U << static_cast<unsigned>(Kind::Byte) | 1U << static_cast<unsigned>(Kind::Integer) |
            1U << static_cast<unsigned>(Kind::Long) | 1U << static_cast<unsigned>(Kind::Double);
        return (plainKinds >> static_cast<unsigned>(kind) & 1U) != 0;
    }

    Shape shapeOfSteps() const;
    bool runSteps(const SymbolTable& symbols, double& result) const;
    bool translate(const Chunk& chunk);
    bool translate(const Instruction& instruction, const Chunk& chunk);
    bool translateOperator(Operator operation);
    bool withConstantRight(Operator operation, double k);
    bool withConstantLeft(Operator operation, double k);
    bool withVariableRight(Operator operation, std::int32_t variable);
    bool translateBuiltin(std::int32_t function);
    bool translateMember(std::int32_t member);
    bool pushVariable(std::int32_t symbol);
    bool push(Step step);
    bool evaluate(const double* variables, double& result) const;

    Shape shape_ = Shape::General;
    std::vector<Step> steps_;
    std::vector<std::int32_t> variables_;  ///< symbols that are read, each once
    std::vector<std::size_t> starts_;      ///< while translating: where each operand on the stack begins
};

}  // namespace zg
