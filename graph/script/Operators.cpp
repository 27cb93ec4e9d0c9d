#include "graph/script/Operators.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/Numbers.h"
#include "graph/script/ScriptError.h"
#include "graph/script/SmallPowers.h"

namespace zg::script {

namespace {

/// The type with which a value takes part in arithmetic: a text counts as Double, a Boolean as Integer.
ValueType arithmeticType(const Value& value) {
    switch (value.type()) {
        case ValueType::Empty:
        case ValueType::Boolean:
            return ValueType::Integer;
        case ValueType::Text:
            return ValueType::Double;
        default:
            return value.type();
    }
}

/// Both are arithmetic types. A single with a long gives a double, to keep the long's digits.
ValueType commonType(ValueType left, ValueType right) {
    if (left == ValueType::Single || right == ValueType::Single) {
        const ValueType other = left == ValueType::Single ? right : left;
        return other == ValueType::Long || other == ValueType::Double ? ValueType::Double : ValueType::Single;
    }
    return std::max(left, right);
}

Value typedResult(ValueType type, double result) {
    if (type == ValueType::Double) return checkedDouble(result);
    if (type == ValueType::Single) return singleOrDouble(result);
    return widened(type, result);
}

Value divide(ValueType type, double left, double right) {
    if (right == 0) {
        if (left == 0) throw ZeroByZero();
        raise(ErrorNumber::DivisionByZero);
    }
    return type == ValueType::Single ? singleOrDouble(left / right) : checkedDouble(left / right);
}

Value raisePower(double base, double exponent) {
    const double result = power(base, exponent);
    if (std::isnan(result) || (base == 0 && exponent < 0)) raise(ErrorNumber::InvalidProcedureCall);
    return checkedDouble(result);
}

/// Narrow operands give an integer if it fits, otherwise a long.
ValueType wholeType(const Value& left, const Value& right) {
    const ValueType common = std::max(arithmeticType(left), arithmeticType(right));
    return std::min(common, ValueType::Long);
}

Value arithmetic(Operator operation, const Value& left, const Value& right) {
    const double a = toNumber(left);
    const double b = toNumber(right);
    const ValueType type = commonType(arithmeticType(left), arithmeticType(right));
    switch (operation) {
        case Operator::Power:
            return raisePower(a, b);
        case Operator::Multiply:
            return typedResult(type, a * b);
        case Operator::Divide:
            return divide(type, a, b);
        case Operator::IntegerDivide:
            return widened(wholeType(left, right), idiv(toInt32(a), toInt32(b)));
        case Operator::Modulo:
            return widened(wholeType(left, right), imod(toInt32(a), toInt32(b)));
        case Operator::Subtract:
            return typedResult(type, a - b);
        default:
            return typedResult(type, a + b);
    }
}

Value concatenate(const Value& left, const Value& right, const std::shared_ptr<MemoryBudget>& budget) {
    const bool leftNull = left.is(ValueType::Null);
    const bool rightNull = right.is(ValueType::Null);
    if (leftNull && rightNull) return Value::null();
    std::string out = leftNull ? std::string() : toText(left);
    if (!rightNull) out += toText(right);
    return Value::text(std::move(out), budget);
}

/// Texts are joined, Empty gives the other operand, numbers are added.
Value add(const Value& left, const Value& right, const std::shared_ptr<MemoryBudget>& budget) {
    if (left.is(ValueType::Text) && right.is(ValueType::Text)) return concatenate(left, right, budget);
    if (left.is(ValueType::Empty) && right.is(ValueType::Text)) return right;
    if (right.is(ValueType::Empty) && left.is(ValueType::Text)) return left;
    return arithmetic(Operator::Add, left, right);
}

template <typename T>
bool holds(Operator operation, const T& left, const T& right) {
    switch (operation) {
        case Operator::Equal:
            return left == right;
        case Operator::NotEqual:
            return left != right;
        case Operator::Less:
            return left < right;
        case Operator::Greater:
            return left > right;
        case Operator::LessEqual:
            return left <= right;
        default:
            return left >= right;
    }
}

/// Texts compare by their bytes, Empty as the text or number that the other operand requires; a number is
/// less than any text.
Value compare(Operator operation, const Value& left, const Value& right) {
    const bool leftText = left.is(ValueType::Text);
    const bool rightText = right.is(ValueType::Text);
    static const std::string nothing;
    if (leftText && rightText) return Value::boolean(holds(operation, left.text(), right.text()));
    if (leftText && right.is(ValueType::Empty)) return Value::boolean(holds(operation, left.text(), nothing));
    if (rightText && left.is(ValueType::Empty))
        return Value::boolean(holds(operation, nothing, right.text()));
    const double a = leftText ? 1 : toNumber(left);
    const double b = rightText ? 1 : toNumber(right);
    if (leftText || rightText) return Value::boolean(holds(operation, leftText, rightText));
    return Value::boolean(holds(operation, a, b));
}

std::int32_t combined(Operator operation, std::int32_t a, std::int32_t b) {
    switch (operation) {
        case Operator::And:
            return a & b;
        case Operator::Or:
            return a | b;
        case Operator::Xor:
            return a ^ b;
        case Operator::Eqv:
            return ~(a ^ b);
        default:
            return ~a | b;
    }
}

/// Two Booleans stay Boolean; bytes stay bytes if the result fits.
Value logicalResult(const Value& left, const Value& right, std::int32_t bits) {
    if (left.is(ValueType::Boolean) && right.is(ValueType::Boolean)) return Value::boolean(bits != 0);
    return widened(wholeType(left, right), bits);
}

/// One operand is Null: the other one may decide alone, whatever the unknown one is.
Value logicWithNull(Operator operation, const Value& left, const Value& right) {
    const bool leftNull = left.is(ValueType::Null);
    const Value& known = leftNull ? right : left;
    if (known.is(ValueType::Null)) return Value::null();
    const std::int32_t bits = toLong(known);
    const bool decided = (operation == Operator::And && bits == 0) ||
                         (operation == Operator::Or && bits == -1) ||
                         (operation == Operator::Imp && bits == (leftNull ? -1 : 0));
    if (!decided) return Value::null();
    return logicalResult(known, known, operation == Operator::And ? 0 : -1);
}

Value logical(Operator operation, const Value& left, const Value& right) {
    if (left.is(ValueType::Null) || right.is(ValueType::Null)) return logicWithNull(operation, left, right);
    return logicalResult(left, right, combined(operation, toLong(left), toLong(right)));
}

bool isComparison(Operator operation) {
    return operation >= Operator::Equal && operation <= Operator::GreaterEqual;
}

bool fitsLong(double value) { return value > -2147483648.5 && value < 2147483647.5; }

}  // namespace

Value apply(Operator operation, const Value& left, const Value& right,
            const std::shared_ptr<MemoryBudget>& budget) {
    if (operation == Operator::Concatenate) return concatenate(left, right, budget);
    if (operation >= Operator::And) return logical(operation, left, right);
    if (left.is(ValueType::Null) || right.is(ValueType::Null)) return Value::null();
    if (isComparison(operation)) return compare(operation, left, right);
    if (operation == Operator::Add) return add(left, right, budget);
    return arithmetic(operation, left, right);
}

Value apply(Operator operation, const Value& operand) {
    if (operand.is(ValueType::Null)) return operand;
    if (operation == Operator::Not) {
        if (operand.is(ValueType::Boolean)) return Value::boolean(operand.number() == 0);
        return widened(wholeType(operand, operand), ~toLong(operand));
    }
    const double negative = -toNumber(operand);
    return typedResult(arithmeticType(operand), negative);
}

double numericNot(double operand) {
    return fitsLong(operand) ? static_cast<double>(~toInt32(operand)) : std::nan("");
}

double numericResult(Operator operation, double left, double right) {
    switch (operation) {
        case Operator::Power:
            return power(left, right);
        case Operator::Multiply:
            return left * right;
        case Operator::Divide:
            return left / right;
        case Operator::Add:
            return left + right;
        case Operator::Subtract:
            return left - right;
        default:
            break;
    }
    if (isComparison(operation)) return holds(operation, left, right) ? -1 : 0;
    if (!fitsLong(left) || !fitsLong(right)) return std::nan("");
    const std::int32_t a = toInt32(left);
    const std::int32_t b = toInt32(right);
    if (operation >= Operator::And) return combined(operation, a, b);
    const bool tooLarge = b == -1 && a == std::numeric_limits<std::int32_t>::min();
    if (b == 0 || tooLarge) return std::nan("");
    return operation == Operator::IntegerDivide ? idiv(a, b) : imod(a, b);
}

}  // namespace zg::script
