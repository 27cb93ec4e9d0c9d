#pragma once

// The fast form of a formula: a formula over plain numbers needs no types at run time, because integers of
// every width give the same number in doubles. It runs on an accumulator and cells of memory, constants and
// variables being read where they lie. Where anything goes wrong (a variable holds a text, a result
// overflows) it gives up, and the machine evaluates the formula anew and knows the exact error; a formula has
// no side effects.

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
    // The instructions point into the cells: the code may move, but not be copied.
    NumericCode(NumericCode&&) = default;
    NumericCode& operator=(NumericCode&&) = default;

    /// Becomes the code of an expression over plain numbers; false for any other one. Its variables are read
    /// from `globals`, which must outlive the code.
    bool compile(const Syntax& syntax, Globals& globals);

    /// The value as the variables are now; not finite where the machine is to be asked.
    double evaluate() const;

 private:
    friend class NumericCompiler;

    /// The shortest formulas: *a * *b + *c. Without cells where the formula is a longer one.
    struct Linear {
        const double* a = nullptr;
        const double* b = nullptr;
        const double* c = nullptr;
    };

    double run() const;

    Linear linear_;

    std::vector<NumericInstruction> code_;
    std::vector<double> cells_;            ///< never grows after the code refers to it
    std::vector<const Value*> variables_;  ///< must be plain numbers
};

inline double NumericCode::evaluate() const {
    for (const Value* const variable : variables_)
        if (!variable->isPlainNumber()) return std::numeric_limits<double>::quiet_NaN();
    return linear_.a ? *linear_.a * *linear_.b + *linear_.c : run();
}

}  // namespace zg::script
