#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "graph/script/HostFunctions.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

namespace {

using Unary = double (*)(double);
using Binary = double (*)(double, double);

Value pi(HostContext&, Arguments) { return Value(MathLibrary::Pi()); }

template <Unary operation>
Value unary(HostContext&, Arguments arguments) {
    return checkedDouble(operation(toNumber(arguments[0])));
}

template <Binary operation>
Value binary(HostContext&, Arguments arguments) {
    const double first = toNumber(arguments[0]);
    return checkedDouble(operation(first, toNumber(arguments[1])));
}

Value milliseconds(HostContext&, Arguments arguments) {
    return Value(MathLibrary::Milliseconds(toInt16(toNumber(arguments[0]))));
}

double powerOrNothing(double x, double y) { return x > 0 ? std::exp(y * std::log(x)) : std::nan(""); }

constexpr HostFunction members[] = {
    {"area", 1, 1, unary<MathLibrary::Area>, MathLibrary::Area},
    {"circumference", 1, 1, unary<MathLibrary::Circumference>, MathLibrary::Circumference},
    {"cot", 1, 1, unary<MathLibrary::Cot>, MathLibrary::Cot},
    {"csc", 1, 1, unary<MathLibrary::Csc>, MathLibrary::Csc},
    {"degrees", 1, 1, unary<MathLibrary::Degrees>, MathLibrary::Degrees},
    {"diameter", 1, 1, unary<MathLibrary::Diameter>, MathLibrary::Diameter},
    {"milliseconds", 1, 1, milliseconds},
    {"pi", 0, 0, pi, nullptr, nullptr, MathLibrary::Pi},
    {"pow", 2, 2, binary<MathLibrary::pow>, nullptr, powerOrNothing},
    {"radians", 1, 1, unary<MathLibrary::Radians>, MathLibrary::Radians},
    {"radius", 2, 2, binary<MathLibrary::Radius>, nullptr, MathLibrary::Radius},
    {"sec", 1, 1, unary<MathLibrary::Sec>, MathLibrary::Sec},
};

}  // namespace

std::span<const HostFunction> mathMembers() { return members; }

}  // namespace zg::script
