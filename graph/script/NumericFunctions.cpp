#include "graph/script/NumericFunctions.h"

#include <cmath>

#include "base/Numbers.h"
#include "graph/script/HostFunctions.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

namespace {

using Real = double (*)(double);

/// A function from a real number to a double; not-a-number as result means an invalid argument.
template <Real function>
Value real(HostContext&, Arguments arguments) {
    const double result = function(toNumber(arguments[0]));
    if (std::isnan(result)) raise(ErrorNumber::InvalidProcedureCall);
    return checkedDouble(result);
}

double sine(double x) { return std::sin(x); }
double cosine(double x) { return std::cos(x); }
double tangent(double x) { return std::tan(x); }
double arcTangent(double x) { return std::atan(x); }
double exponential(double x) { return std::exp(x); }
double squareRoot(double x) { return std::sqrt(x); }
double absolute(double x) { return std::fabs(x); }
double roundedDown(double x) { return std::floor(x); }
double rounded(double x) { return roundHalfEven(x); }

/// A function that keeps the width of its argument; Null stays Null.
template <Real function>
Value keepingType(HostContext&, Arguments arguments) {
    const Value& value = arguments[0];
    if (value.is(ValueType::Null)) return value;
    const double result = function(toNumber(value));
    switch (value.type()) {
        case ValueType::Single:
            return singleOrDouble(result);
        case ValueType::Byte:
        case ValueType::Long:
            return widened(value.type(), result);
        case ValueType::Empty:
        case ValueType::Boolean:
        case ValueType::Integer:
            return widened(ValueType::Integer, result);
        default:
            return checkedDouble(result);
    }
}

Value sgn(HostContext&, Arguments arguments) { return {ValueType::Integer, signOf(toNumber(arguments[0]))}; }

Value round(HostContext& context, Arguments arguments) {
    if (arguments.size() == 1) return keepingType<rounded>(context, arguments);
    const std::int32_t decimals = toLong(arguments[1]);
    if (decimals < 0 || decimals > 22) raise(ErrorNumber::InvalidProcedureCall);
    const Value& value = arguments[0];
    if (value.is(ValueType::Null)) return value;
    const double result = roundHalfEven(toNumber(value), decimals);
    if (value.is(ValueType::Single)) return singleOrDouble(result);
    if (value.isPlainNumber() && !value.is(ValueType::Double)) return widened(ValueType::Integer, result);
    return checkedDouble(result);
}

Value rnd(HostContext& context, Arguments arguments) {
    RandomNumbers& random = context.random;
    const double place = arguments.empty() ? 1 : toNumber(arguments[0]);
    if (place < 0) random.restart(zg::toSingle(place));
    return {ValueType::Single, place == 0 ? random.last() : random.next()};
}

Value randomize(HostContext& context, Arguments arguments) {
    const double number =
        arguments.empty() ? static_cast<double>(context.clock()) / 1000 : toNumber(arguments[0]);
    context.random.seed(number);
    return {};
}

constexpr HostFunction numericTable[] = {
    {"abs", 1, 1, keepingType<absolute>, absolute},
    {"atn", 1, 1, real<arcTangent>, arcTangent},
    {"cos", 1, 1, real<cosine>, cosine},
    {"exp", 1, 1, real<exponential>, exponential},
    {"fix", 1, 1, keepingType<truncated>, truncated},
    {"int", 1, 1, keepingType<roundedDown>, roundedDown},
    {"log", 1, 1, real<naturalLogarithm>, naturalLogarithm},
    {"randomize", 0, 1, randomize},
    {"rnd", 0, 1, rnd},
    {"round", 1, 2, round, rounded},
    {"sgn", 1, 1, sgn, signOf},
    {"sin", 1, 1, real<sine>, sine},
    {"sqr", 1, 1, real<squareRoot>, squareRoot},
    {"tan", 1, 1, real<tangent>, tangent},
};

}  // namespace

std::span<const HostFunction> numericFunctions() { return numericTable; }

}  // namespace zg::script
