#pragma once

// The operators on values, with the language's rules of which width a result has.

#include <memory>

#include "graph/script/Value.h"

namespace zg::script {

/// In the order of their precedence, the most binding first, as far as it differs.
enum class Operator : std::uint8_t {
    Power,
    Negate,
    Multiply,
    Divide,
    IntegerDivide,
    Modulo,
    Add,
    Subtract,
    Concatenate,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessEqual,
    GreaterEqual,
    Not,
    And,
    Or,
    Xor,
    Eqv,
    Imp,
};

/// The result of `left operator right`. Texts that come about are charged to the budget. Raises 13, 11 and 6
/// as the operation asks, 7 for a text that grows too long.
Value apply(Operator operation, const Value& left, const Value& right,
            const std::shared_ptr<MemoryBudget>& budget);
/// Negate and Not.
Value apply(Operator operation, const Value& operand);

/// The operators on doubles as formulas use them: not-a-number or an infinity where apply would raise.
double numericResult(Operator operation, double left, double right);
/// Not on a number, not-a-number outside 32 bits.
double numericNot(double operand);

}  // namespace zg::script
