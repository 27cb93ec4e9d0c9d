#pragma once

// The operators on values, with the language's rules for the width of the result.

#include <memory>

#include "graph/script/Value.h"

namespace zg::script {

/// From the tightest binding to the loosest, where it differs.
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

/// The result of `left operator right`. New texts are charged to the budget. Raises 13, 11 and 6 as the
/// operation requires, 7 for a text that grows too long.
Value apply(Operator operation, const Value& left, const Value& right,
            const std::shared_ptr<MemoryBudget>& budget);
/// Negate and Not.
Value apply(Operator operation, const Value& operand);

/// The operators on doubles for formulas: not-a-number or an infinity where `apply` would raise an error.
double numericResult(Operator operation, double left, double right);
/// Not on a number, not-a-number outside 32 bits.
double numericNot(double operand);

}  // namespace zg::script
