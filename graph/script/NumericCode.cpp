#include "graph/script/NumericCode.h"

#include <cfloat>
#include <cmath>
#include <limits>

#include "graph/script/NumericFunctions.h"
#include "graph/script/SmallPowers.h"

namespace zg::script {

namespace {

constexpr double giveUp = std::numeric_limits<double>::quiet_NaN();

/// False for not-a-number too.
inline bool isFinite(double x) { return std::fabs(x) <= DBL_MAX; }

}  // namespace

/// An overflow remains visible as an infinity or not-a-number through most operations; those that could turn
/// it into an ordinary number check their operand first.
double NumericCode::run() const {
    double x = 0;
    for (const NumericInstruction* i = code_.data();; ++i) {
        switch (i->op) {
            case NumericOp::Result:
                return x;
            case NumericOp::Load:
                x = *i->a;
                break;
            case NumericOp::Store:
                *i->into = x;
                break;
            case NumericOp::AddCells:
                x = *i->a + *i->b;
                break;
            case NumericOp::SubtractCells:
                x = *i->a - *i->b;
                break;
            case NumericOp::MultiplyCells:
                x = *i->a * *i->b;
                break;
            case NumericOp::DivideCells:
                if (*i->b == 0 || !isFinite(*i->b)) return giveUp;
                x = *i->a / *i->b;
                break;
            case NumericOp::LinearCells:
                x = *i->a * *i->b + *i->c;
                break;
            case NumericOp::Add:
                x += *i->a;
                break;
            case NumericOp::Subtract:
                x -= *i->a;
                break;
            case NumericOp::SubtractFrom:
                x = *i->a - x;
                break;
            case NumericOp::Multiply:
                x *= *i->a;
                break;
            case NumericOp::Divide:
                if (*i->a == 0 || !isFinite(*i->a)) return giveUp;
                x /= *i->a;
                break;
            case NumericOp::DivideInto:
                if (x == 0 || !isFinite(x)) return giveUp;
                x = *i->a / x;
                break;
            case NumericOp::Negate:
                x = -x;
                break;
            case NumericOp::Square:
                x *= x;
                break;
            case NumericOp::SquareCell:
                x = *i->a * *i->a;
                break;
            case NumericOp::ScaledSquare:
                x = *i->a * (*i->b * *i->b);
                break;
            case NumericOp::CubeCell:
                x = cube(*i->a);
                break;
            case NumericOp::Cube:
                x = cube(x);
                break;
            case NumericOp::Fourth:
                x = fourthPower(x);
                break;
            case NumericOp::Fifth:
                x = fifthPower(x);
                break;
            case NumericOp::Sin:
                x = std::sin(x);
                break;
            case NumericOp::SinCell:
                x = std::sin(*i->a);
                break;
            case NumericOp::SinProduct:
                x = std::sin(*i->a * *i->b);
                break;
            case NumericOp::Cos:
                x = std::cos(x);
                break;
            case NumericOp::CosCell:
                x = std::cos(*i->a);
                break;
            case NumericOp::CosProduct:
                x = std::cos(*i->a * *i->b);
                break;
            case NumericOp::Tan:
                x = std::tan(x);
                break;
            case NumericOp::Atn:
                if (!isFinite(x)) return giveUp;
                x = std::atan(x);
                break;
            case NumericOp::Exp:
                if (!isFinite(x)) return giveUp;
                x = std::exp(x);
                break;
            case NumericOp::Log:
                if (!(x > 0)) return giveUp;
                x = std::log(x);
                break;
            case NumericOp::Sqr:
                if (!(x >= 0)) return giveUp;
                x = std::sqrt(x);
                break;
            case NumericOp::Abs:
                x = std::fabs(x);
                break;
            case NumericOp::Int:
                x = std::floor(x);
                break;
            case NumericOp::Fix:
                x = truncated(x);
                break;
            case NumericOp::CallUnary:
                if (!isFinite(x)) return giveUp;
                x = i->unary(x);
                break;
            case NumericOp::CallBinary:
                if (!isFinite(*i->a) || !isFinite(*i->b)) return giveUp;
                x = i->binary(*i->a, *i->b);
                break;
        }
    }
}

}  // namespace zg::script
