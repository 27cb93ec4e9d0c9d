#pragma once

// A value of a script and the operators on values. Whole numbers grow into the next wider kind instead of
// overflowing, as scripts expect: Integer (16 bits), Long (32 bits), Double.

#include <cstdint>
#include <string>

namespace zg {

enum class Kind : std::uint8_t { Empty, Null, Boolean, Byte, Integer, Long, Single, Double, String };

struct Value {
    Kind kind = Kind::Empty;
    double number = 0;  ///< of every kind but Empty, Null and String; True is -1
    std::string text;   ///< of String

    static Value ofDouble(double value) { return {Kind::Double, value, {}}; }
    static Value ofBoolean(bool value) { return {Kind::Boolean, value ? -1.0 : 0.0, {}}; }
    static Value ofLong(std::int32_t value) { return {Kind::Long, static_cast<double>(value), {}}; }
    static Value ofString(std::string value) { return {Kind::String, 0, std::move(value)}; }

    /// A whole number in the narrowest kind that holds it, Integer first.
    static Value ofWhole(double value);
};

/// Length beyond which a string is out of memory.
constexpr std::size_t longestString = 16U * 1024 * 1024;

enum class Operator : std::uint8_t {
    Add,
    Subtract,
    Multiply,
    Divide,
    IntegerDivide,
    Modulo,
    Power,
    Concatenate,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    And,
    Or,
    Xor,
    Eqv,
    Imp
};

/// The result of a binary operator; raises 6, 11, 13 or 5 as the operands demand. Null makes most results
/// Null.
Value applyOperator(Operator operation, const Value& left, const Value& right);

Value negate(const Value& value);
Value logicalNot(const Value& value);

/// The value as a number; Empty is 0. Raises 13 for a text that is none and 94 for Null.
double toNumber(const Value& value);

/// As toNumber, rounded half to even to 32 bits; raises 6 beyond them.
std::int32_t toWhole(const Value& value);

/// As a text: numbers by their shortest form, "True" and "False", Empty is "". Raises 94 for Null.
std::string toText(const Value& value);

/// Whether a condition holds; Null does not.
bool isTrue(const Value& value);

bool isNumberText(const std::string& text);

/// "Double", "String", ... as scripts name the kinds.
const char* kindName(Kind kind);

/// Raises 6 for what is not finite, else gives it back.
double finite(double value);

}  // namespace zg
