#pragma once

// The fast form of a formula: a formula over plain numbers needs no types at run time, because integers of
// every width give the same number in doubles. It runs on an accumulator and memory cells; constants and
// variables are read in place. In every unusual case (a variable holds a text, a result overflows) it gives
// up, and the machine evaluates the formula again and determines the exact error; formulas have no side
// effects.

#include <cstdint>
#include <limits>
#include <vector>

#include "graph/script/Globals.h"
#include "graph/script/Operators.h"
#include "graph/script/Syntax.h"
#include "graph/script/Value.h"

namespace zg::script {

/// *a and *b are cells; the other operand and the result are the accumulator.
enum class NumericOp : std::uint8_t {
    Result,  ///< the accumulator
    Load,    ///< *a
    Store,   ///< into *into
    AddCells,
    SubtractCells,
    MultiplyCells,
    DivideCells,
    LinearCells,  ///< *a * *b + *c
    Add,
    Subtract,
    SubtractFrom,  ///< *a - accumulator
    Multiply,
    Divide,
    DivideInto,  ///< *a / accumulator
    Negate,
    Square,
    SquareCell,
    ScaledSquare,  ///< *a * (*b * *b)
    Cube,
    CubeCell,
    Fourth,
    Fifth,
    Sin,
    SinCell,
    SinProduct,  ///< sin(*a * *b)
    Cos,
    CosCell,
    CosProduct,
    Tan,
    Atn,
    Exp,
    Log,
    Sqr,
    Abs,
    Int,
    Fix,
    CallUnary,   ///< on the accumulator
    CallBinary,  ///< on *a and *b
};

struct NumericInstruction {
    NumericOp op = NumericOp::Result;
    const double* a = nullptr;
    const double* b = nullptr;
    union {
        double* into = nullptr;
        const double* c;
        double (*unary)(double);
        double (*binary)(double, double);
    };
};

class NumericCode {
 public:
    NumericCode() = default;
    // The instructions point into the cells: the code can be moved, but not copied.
    NumericCode(NumericCode&&) = default;
    NumericCode& operator=(NumericCode&&) = default;

    /// Compiles an expression over plain numbers; false for any other one. Its variables are read from
    /// `globals`, which must outlive the code.
    bool compile(const Syntax& syntax, Globals& globals);

    /// The value for the current variables; not finite if the machine has to evaluate it.
    double evaluate() const;

 private:
    friend class NumericCompiler;

    /// The shortest formulas: *a * *b + *c. Without cells if the formula is a longer one.
    struct Linear {
        const double* a = nullptr;
        const double* b = nullptr;
        const double* c = nullptr;
    };

    double run() const;

    Linear linear_;

    std::vector<NumericInstruction> code_;
    std::vector<double> cells_;            ///< does not grow once the code refers to it
    std::vector<const Value*> variables_;  ///< must be plain numbers
};

inline double NumericCode::evaluate() const {
    for (const Value* const variable : variables_)
        if (!variable->isPlainNumber()) return std::numeric_limits<double>::quiet_NaN();
    return linear_.a ? *linear_.a * *linear_.b + *linear_.c : run();
}

}  // namespace zg::script
