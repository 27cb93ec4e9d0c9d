#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/Numbers.h"
#include "graph/script/HostFunctions.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

namespace {

Value cBool(HostContext&, Arguments arguments) {
    if (arguments[0].is(ValueType::Null)) raise(ScriptErrorNumber::InvalidUseOfNull);
    return Value::boolean(toCondition(arguments[0]));
}

Value cByte(HostContext&, Arguments arguments) {
    const std::int32_t whole = toLong(arguments[0]);
    if (whole < 0 || whole > 255) raise(ErrorNumber::Overflow);
    return {ValueType::Byte, static_cast<double>(whole)};
}

Value cInt(HostContext&, Arguments arguments) {
    return {ValueType::Integer, static_cast<double>(toInt16(toNumber(arguments[0])))};
}

Value cLng(HostContext&, Arguments arguments) {
    return {ValueType::Long, static_cast<double>(toLong(arguments[0]))};
}

Value cSng(HostContext&, Arguments arguments) {
    return {ValueType::Single, zg::toSingle(toNumber(arguments[0]))};
}

Value cDbl(HostContext&, Arguments arguments) { return Value(toNumber(arguments[0])); }

Value cStr(HostContext& context, Arguments arguments) { return context.text(toText(arguments[0])); }

double wholeBetween(double x, double lowest, double highest) {
    const double whole = roundHalfEven(x);
    return whole >= lowest && whole <= highest ? whole : std::nan("");
}

double plainBool(double x) { return x != 0 ? -1 : 0; }
double plainByte(double x) { return wholeBetween(x, 0, 255); }
double plainInt(double x) { return wholeBetween(x, -32768, 32767); }
double plainLng(double x) { return wholeBetween(x, -2147483648.0, 2147483647.0); }
double plainDbl(double x) { return x; }

/// The digits of a long in the given base, negative ones as the bits of their width.
Value digits(HostContext& context, const Value& value, int base) {
    if (value.is(ValueType::Null)) return value;
    auto bits = static_cast<std::uint32_t>(toLong(value));
    if (value.type() <= ValueType::Integer) bits &= 0xFFFF;
    std::array<char, 16> buffer{};
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), bits, base).ptr;
    std::string out(buffer.data(), end);
    for (char& c : out)
        if (c >= 'a') c = static_cast<char>(c - 'a' + 'A');
    return context.text(std::move(out));
}

Value hex(HostContext& context, Arguments arguments) { return digits(context, arguments[0], 16); }
Value oct(HostContext& context, Arguments arguments) { return digits(context, arguments[0], 8); }

/// The colour number of red, green and blue, each 0 to 255, with red in the lowest byte. Values above 255
/// count as 255.
Value rgb(HostContext&, Arguments arguments) {
    double colour = 0;
    double place = 1;
    for (const Value& argument : arguments) {
        const std::int16_t part = toInt16(toNumber(argument));
        if (part < 0) raise(ErrorNumber::InvalidProcedureCall);
        colour += place * std::min<std::int16_t>(part, 255);
        place *= 256;
    }
    return {ValueType::Long, colour};
}

Value isNumeric(HostContext&, Arguments arguments) {
    if (!arguments[0].is(ValueType::Text)) return Value::boolean(arguments[0].isNumber());
    try {
        static_cast<void>(toNumber(arguments[0]));
        return Value::boolean(true);
    } catch (const RunTimeError&) {
        return Value::boolean(false);
    }
}

Value isEmpty(HostContext&, Arguments arguments) { return Value::boolean(arguments[0].is(ValueType::Empty)); }

Value isNull(HostContext&, Arguments arguments) { return Value::boolean(arguments[0].is(ValueType::Null)); }

Value varType(HostContext&, Arguments arguments) {
    return {ValueType::Integer, static_cast<double>(typeCode(arguments[0].type()))};
}

Value typeNameOf(HostContext& context, Arguments arguments) {
    return context.text(typeName(arguments[0].type()));
}

constexpr HostFunction conversionTable[] = {
    {"cbool", 1, 1, cBool, plainBool},
    {"cbyte", 1, 1, cByte, plainByte},
    {"cdbl", 1, 1, cDbl, plainDbl},
    {"cint", 1, 1, cInt, plainInt},
    {"clng", 1, 1, cLng, plainLng},
    {"csng", 1, 1, cSng},
    {"cstr", 1, 1, cStr},
    {"hex", 1, 1, hex},
    {"isempty", 1, 1, isEmpty},
    {"isnull", 1, 1, isNull},
    {"isnumeric", 1, 1, isNumeric},
    {"oct", 1, 1, oct},
    {"rgb", 3, 3, rgb},
    {"typename", 1, 1, typeNameOf},
    {"vartype", 1, 1, varType},
};

}  // namespace

std::span<const HostFunction> conversionFunctions() { return conversionTable; }

}  // namespace zg::script
