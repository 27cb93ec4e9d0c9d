#include "graph/script/Value.h"

#include <cmath>
#include <limits>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/script/ScriptError.h"

namespace zg {

namespace {

bool fitsIn(Kind kind, double value) {
    switch (kind) {
        case Kind::Byte:
            return value >= 0 && value <= 255;
        case Kind::Integer:
        case Kind::Boolean:
        case Kind::Empty:
            return value >= -32768 && value <= 32767;
        case Kind::Long:
            return value >= std::numeric_limits<std::int32_t>::min() &&
                   value <= std::numeric_limits<std::int32_t>::max();
        default:
            return true;
    }
}

/// The kind that arithmetic on a value happens in.
Kind arithmeticKind(const Value& value) {
    switch (value.kind) {
        case Kind::Empty:
        case Kind::Boolean:
            return Kind::Integer;
        case Kind::String:
            return Kind::Double;
        default:
            return value.kind;
    }
}

/// A result in the wider of two kinds, and wider still where it does not fit.
Value inKind(Kind kind, double value) {
    finite(value);
    if (kind == Kind::Single) {
        if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max()))
            return Value::ofDouble(value);
        return {Kind::Single, static_cast<double>(static_cast<float>(value)), {}};
    }
    for (const Kind wider : {Kind::Byte, Kind::Integer, Kind::Long})
        if (kind <= wider && fitsIn(wider, value)) return {wider, value, {}};
    return Value::ofDouble(value);
}

Kind widerKind(const Value& left, const Value& right) {
    const Kind a = arithmeticKind(left);
    const Kind b = arithmeticKind(right);
    // A single beside a 32-bit whole number would lose digits.
    if ((a == Kind::Single && b == Kind::Long) || (a == Kind::Long && b == Kind::Single)) return Kind::Double;
    return std::max(a, b);
}

Value add(const Value& left, const Value& right) {
    if (left.kind == Kind::String && right.kind == Kind::String)
        return applyOperator(Operator::Concatenate, left, right);
    if ((left.kind == Kind::String && right.kind == Kind::Empty) ||
        (left.kind == Kind::Empty && right.kind == Kind::String))
        return applyOperator(Operator::Concatenate, left, right);
    return inKind(widerKind(left, right), toNumber(left) + toNumber(right));
}

Value divide(const Value& left, const Value& right) {
    const double dividend = toNumber(left);
    const double divisor = toNumber(right);
    if (divisor == 0) raise(dividend == 0 ? ErrorNumber::Overflow : ErrorNumber::DivisionByZero);
    return Value::ofDouble(finite(dividend / divisor));
}

Value power(const Value& left, const Value& right) {
    const double base = toNumber(left);
    const double exponent = toNumber(right);
    if (base == 0 && exponent < 0) raise(ErrorNumber::InvalidProcedureCall);
    if (base < 0 && exponent != std::floor(exponent)) raise(ErrorNumber::InvalidProcedureCall);
    return Value::ofDouble(finite(std::pow(base, exponent)));
}

Value concatenate(const Value& left, const Value& right) {
    if (left.kind == Kind::Null && right.kind == Kind::Null) return {Kind::Null, 0, {}};
    std::string text = left.kind == Kind::Null ? std::string() : toText(left);
    const std::string rest = right.kind == Kind::Null ? std::string() : toText(right);
    if (text.size() + rest.size() > longestString) raiseScript(ScriptErrorNumber::OutOfMemory);
    text += rest;
    return Value::ofString(std::move(text));
}

/// Below, at or above 0 as left is below, equal to or above right. A number is below any text.
int order(const Value& left, const Value& right) {
    const bool leftText = left.kind == Kind::String;
    const bool rightText = right.kind == Kind::String;
    if (leftText && (rightText || right.kind == Kind::Empty)) return left.text.compare(right.text);
    if (rightText && left.kind == Kind::Empty) return left.text.compare(right.text);
    if (leftText != rightText) return leftText ? 1 : -1;
    const double a = toNumber(left);
    const double b = toNumber(right);
    return a < b ? -1 : (a > b ? 1 : 0);
}

Value compare(Operator operation, const Value& left, const Value& right) {
    const int sign = order(left, right);
    switch (operation) {
        case Operator::Equal:
            return Value::ofBoolean(sign == 0);
        case Operator::NotEqual:
            return Value::ofBoolean(sign != 0);
        case Operator::Less:
            return Value::ofBoolean(sign < 0);
        case Operator::Greater:
            return Value::ofBoolean(sign > 0);
        case Operator::LessOrEqual:
            return Value::ofBoolean(sign <= 0);
        default:
            return Value::ofBoolean(sign >= 0);
    }
}

Value logical(Operator operation, const Value& left, const Value& right) {
    const auto a = static_cast<std::uint32_t>(toWhole(left));
    const auto b = static_cast<std::uint32_t>(toWhole(right));
    std::uint32_t bits = 0;
    switch (operation) {
        case Operator::And:
            bits = a & b;
            break;
        case Operator::Or:
            bits = a | b;
            break;
        case Operator::Xor:
            bits = a ^ b;
            break;
        case Operator::Eqv:
            bits = ~(a ^ b);
            break;
        default:
            bits = ~a | b;
            break;
    }
    const auto result = static_cast<double>(static_cast<std::int32_t>(bits));
    if (left.kind == Kind::Boolean && right.kind == Kind::Boolean) return Value::ofBoolean(result != 0);
    return inKind(
        std::max(Kind::Integer, widerKind(left, right) == Kind::Double ? Kind::Long : Kind::Integer), result);
}

}  // namespace

Value Value::ofWhole(double value) { return inKind(Kind::Integer, value); }

double finite(double value) {
    if (!std::isfinite(value)) raise(ErrorNumber::Overflow);
    return value;
}

double toNumber(const Value& value) {
    if (value.kind == Kind::String) return toDouble(value.text);
    if (value.kind == Kind::Null) raiseScript(ScriptErrorNumber::InvalidUseOfNull);
    return value.number;
}

std::int32_t toWhole(const Value& value) { return toInt32(toNumber(value)); }

std::string toText(const Value& value) {
    switch (value.kind) {
        case Kind::Empty:
            return {};
        case Kind::Null:
            raiseScript(ScriptErrorNumber::InvalidUseOfNull);
        case Kind::Boolean:
            return boolText(value.number != 0);
        case Kind::Single:
            return singleText(static_cast<float>(value.number));
        case Kind::String:
            return value.text;
        default:
            return doubleText(value.number);
    }
}

bool isTrue(const Value& value) {
    if (value.kind == Kind::Null) return false;
    if (value.kind == Kind::String) return toBool(value.text);
    return value.number != 0;
}

bool isNumberText(const std::string& text) {
    try {
        toDouble(text);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

Value negate(const Value& value) {
    if (value.kind == Kind::Null) return value;
    const Kind kind = arithmeticKind(value);
    return inKind(kind == Kind::Byte ? Kind::Integer : kind, 0 - toNumber(value));
}

Value logicalNot(const Value& value) {
    if (value.kind == Kind::Null) return value;
    if (value.kind == Kind::Boolean) return Value::ofBoolean(value.number == 0);
    return Value::ofWhole(static_cast<double>(~toWhole(value)));
}

Value applyOperator(Operator operation, const Value& left, const Value& right) {
    if (operation == Operator::Concatenate) return concatenate(left, right);
    if (left.kind == Kind::Null || right.kind == Kind::Null) return {Kind::Null, 0, {}};
    switch (operation) {
        case Operator::Add:
            return add(left, right);
        case Operator::Subtract:
            return inKind(widerKind(left, right), toNumber(left) - toNumber(right));
        case Operator::Multiply:
            return inKind(widerKind(left, right), toNumber(left) * toNumber(right));
        case Operator::Divide:
            return divide(left, right);
        case Operator::IntegerDivide:
            return Value::ofWhole(static_cast<double>(idiv(toWhole(left), toWhole(right))));
        case Operator::Modulo:
            return Value::ofWhole(static_cast<double>(imod(toWhole(left), toWhole(right))));
        case Operator::Power:
            return power(left, right);
        case Operator::Equal:
        case Operator::NotEqual:
        case Operator::Less:
        case Operator::Greater:
        case Operator::LessOrEqual:
        case Operator::GreaterOrEqual:
            return compare(operation, left, right);
        default:
            return logical(operation, left, right);
    }
}

const char* kindName(Kind kind) {
    constexpr const char* names[] = {"Empty", "Null",   "Boolean", "Byte",  "Integer",
                                     "Long",  "Single", "Double",  "String"};
    return names[static_cast<std::size_t>(kind)];
}

}  // namespace zg
