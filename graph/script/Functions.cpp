#include "graph/script/Functions.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/script/ScriptError.h"

namespace zg {

namespace {

using Arguments = std::span<Value>;

bool anyNull(Arguments arguments) {
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const Value& v) { return v.kind == Kind::Null; });
}

const Value nullValue{Kind::Null, 0, {}};

double number(Arguments a, std::size_t i = 0) { return toNumber(a[i]); }

template <double (*Function)(double)>
Value numeric(Arguments a, RandomState&) {
    return Value::ofDouble(finite(Function(number(a))));
}

double checkedLog(double x) {
    if (!(x > 0)) raise(ErrorNumber::InvalidProcedureCall);
    return std::log(x);
}

double checkedRoot(double x) {
    if (x < 0) raise(ErrorNumber::InvalidProcedureCall);
    return std::sqrt(x);
}

Value sameKind(const Value& like, double value) {
    if (like.kind == Kind::Single || like.kind == Kind::Double || like.kind == Kind::String)
        return like.kind == Kind::Single ? Value{Kind::Single, value, {}} : Value::ofDouble(value);
    return Value::ofWhole(value);
}

Value absolute(Arguments a, RandomState&) {
    return a[0].kind == Kind::Null ? nullValue : sameKind(a[0], std::abs(number(a)));
}

Value intOf(Arguments a, RandomState&) {
    return a[0].kind == Kind::Null ? nullValue : sameKind(a[0], std::floor(number(a)));
}

Value fixOf(Arguments a, RandomState&) {
    return a[0].kind == Kind::Null ? nullValue : sameKind(a[0], std::trunc(number(a)));
}

Value signOf(Arguments a, RandomState&) {
    const double x = number(a);
    return Value::ofWhole(x > 0 ? 1 : (x < 0 ? -1 : 0));
}

Value roundOf(Arguments a, RandomState&) {
    if (a[0].kind == Kind::Null) return nullValue;
    const std::int32_t decimals = a.size() > 1 ? toWhole(a[1]) : 0;
    if (decimals < 0 || decimals > 22) raise(ErrorNumber::InvalidProcedureCall);
    return sameKind(a[0], roundHalfEven(number(a), decimals));
}

Value randomOf(Arguments a, RandomState& random) {
    if (!a.empty()) {
        const double x = number(a);
        if (x < 0) random.seed(x);
        if (x == 0) return {Kind::Single, static_cast<double>(random.bits) / 16777216.0, {}};
    }
    return {Kind::Single, static_cast<double>(random.next()), {}};
}

Value randomize(Arguments a, RandomState& random) {
    random.seed(a.empty() ? 0 : number(a));
    return {};
}

Value convertInt(Arguments a, RandomState&) {
    return {Kind::Integer, static_cast<double>(toInt16(number(a))), {}};
}
Value convertLong(Arguments a, RandomState&) { return Value::ofLong(toWhole(a[0])); }
Value convertDouble(Arguments a, RandomState&) { return Value::ofDouble(number(a)); }
Value convertSingle(Arguments a, RandomState&) {
    return {Kind::Single, static_cast<double>(toSingle(number(a))), {}};
}
Value convertText(Arguments a, RandomState&) { return Value::ofString(toText(a[0])); }

Value convertBoolean(Arguments a, RandomState&) {
    if (a[0].kind == Kind::Null) raiseScript(ScriptErrorNumber::InvalidUseOfNull);
    return Value::ofBoolean(isTrue(a[0]));
}

Value convertByte(Arguments a, RandomState&) {
    const std::int32_t whole = toWhole(a[0]);
    if (whole < 0 || whole > 255) raise(ErrorNumber::Overflow);
    return {Kind::Byte, static_cast<double>(whole), {}};
}

std::string digits(std::int32_t whole, unsigned base) {
    auto bits = static_cast<std::uint32_t>(whole);
    if (whole < 0 && whole >= -32768) bits &= 0xFFFFU;  // as a 16-bit number
    std::string text;
    do {
        text.insert(text.begin(), "0123456789ABCDEF"[bits % base]);
        bits /= base;
    } while (bits > 0);
    return text;
}

Value hexOf(Arguments a, RandomState&) { return Value::ofString(digits(toWhole(a[0]), 16)); }
Value octOf(Arguments a, RandomState&) { return Value::ofString(digits(toWhole(a[0]), 8)); }

/// A count of characters from an argument; raises 5 below the smallest allowed one.
std::size_t count(const Value& value, std::int32_t smallest = 0) {
    const std::int32_t whole = toWhole(value);
    if (whole < smallest) raise(ErrorNumber::InvalidProcedureCall);
    return static_cast<std::size_t>(whole);
}

Value length(Arguments a, RandomState&) {
    if (anyNull(a)) return nullValue;
    return Value::ofLong(static_cast<std::int32_t>(toText(a[0]).size()));
}

Value leftOf(Arguments a, RandomState&) {
    return anyNull(a) ? nullValue : Value::ofString(leftN(toText(a[0]), count(a[1])));
}

Value rightOf(Arguments a, RandomState&) {
    return anyNull(a) ? nullValue : Value::ofString(rightN(toText(a[0]), count(a[1])));
}

Value midOf(Arguments a, RandomState&) {
    if (anyNull(a)) return nullValue;
    const std::size_t howMany = a.size() > 2 ? count(a[2]) : std::string::npos;
    return Value::ofString(midN(toText(a[0]), count(a[1], 1), howMany));
}

/// Whether a comparison argument asks to pass over letter case.
bool ignoresCase(Arguments a, std::size_t i) {
    if (a.size() <= i) return false;
    const std::int32_t mode = toWhole(a[i]);
    if (mode != 0 && mode != 1) raise(ErrorNumber::InvalidProcedureCall);
    return mode == 1;
}

Value position(std::size_t at) {
    return Value::ofLong(at == std::string::npos ? 0 : static_cast<std::int32_t>(at) + 1);
}

Value find(std::string text, std::string wanted, std::size_t start, bool anyCase) {
    if (anyCase) {
        text = lcase(text);
        wanted = lcase(wanted);
    }
    if (text.empty() || start > text.size()) return position(std::string::npos);
    return position(text.find(wanted, start - 1));
}

Value inStr(Arguments a, RandomState&) {
    if (anyNull(a)) return nullValue;
    if (a.size() == 2) return find(toText(a[0]), toText(a[1]), 1, false);
    return find(toText(a[1]), toText(a[2]), count(a[0], 1), ignoresCase(a, 3));
}

Value inStrRev(Arguments a, RandomState&) {
    if (anyNull(a)) return nullValue;
    std::string text = toText(a[0]);
    std::string wanted = toText(a[1]);
    const std::int32_t start = a.size() > 2 ? toWhole(a[2]) : -1;
    if (start == 0 || start < -1) raise(ErrorNumber::InvalidProcedureCall);
    if (ignoresCase(a, 3)) {
        text = lcase(text);
        wanted = lcase(wanted);
    }
    if (start != -1) text = text.substr(0, static_cast<std::size_t>(start));
    return text.empty() ? position(std::string::npos) : position(text.rfind(wanted));
}

template <std::string (*Function)(std::string_view)>
Value textual(Arguments a, RandomState&) {
    return anyNull(a) ? nullValue : Value::ofString(Function(toText(a[0])));
}

std::string trimLeft(std::string_view text) {
    const std::size_t from = text.find_first_not_of(' ');
    return std::string(from == std::string_view::npos ? std::string_view() : text.substr(from));
}

std::string trimRight(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string reversed(std::string_view text) { return {text.rbegin(), text.rend()}; }

Value repeated(std::size_t howMany, char c) {
    if (howMany > longestString) raiseScript(ScriptErrorNumber::OutOfMemory);
    return Value::ofString(std::string(howMany, c));
}

Value space(Arguments a, RandomState&) { return repeated(count(a[0]), ' '); }

Value stringOf(Arguments a, RandomState&) {
    if (anyNull(a)) return nullValue;
    if (a[1].kind == Kind::String) {
        if (a[1].text.empty()) raise(ErrorNumber::InvalidProcedureCall);
        return repeated(count(a[0]), a[1].text.front());
    }
    return repeated(count(a[0]), static_cast<char>(static_cast<std::uint32_t>(toWhole(a[1])) & 0xFFU));
}

Value replaceIn(Arguments a, RandomState&) {
    const std::string text = toText(a[0]);
    const std::string wanted = toText(a[1]);
    const std::string instead = toText(a[2]);
    const std::size_t start = a.size() > 3 ? count(a[3], 1) : 1;
    std::int32_t left = a.size() > 4 ? toWhole(a[4]) : -1;
    const bool anyCase = ignoresCase(a, 5);
    if (start > text.size()) return Value::ofString({});
    if (wanted.empty()) return Value::ofString(text.substr(start - 1));
    const std::string searched = anyCase ? lcase(text) : text;
    const std::string key = anyCase ? lcase(wanted) : wanted;
    std::string out;
    std::size_t at = start - 1;
    while (left != 0) {
        const std::size_t found = searched.find(key, at);
        if (found == std::string::npos) break;
        out.append(text, at, found - at).append(instead);
        if (out.size() > longestString) raiseScript(ScriptErrorNumber::OutOfMemory);
        at = found + key.size();
        if (left > 0) --left;
    }
    return Value::ofString(out.append(text, at));
}

Value ascOf(Arguments a, RandomState&) {
    const std::string text = toText(a[0]);
    if (text.empty()) raise(ErrorNumber::InvalidProcedureCall);
    return Value::ofWhole(static_cast<unsigned char>(text.front()));
}

Value chrOf(Arguments a, RandomState&) {
    const std::int32_t code = toWhole(a[0]);
    if (code < 0 || code > 255) raise(ErrorNumber::InvalidProcedureCall);
    return Value::ofString(std::string(1, static_cast<char>(code)));
}

Value strComp(Arguments a, RandomState&) {
    if (anyNull(a)) return nullValue;
    const bool anyCase = ignoresCase(a, 2);
    const std::string left = anyCase ? lcase(toText(a[0])) : toText(a[0]);
    const std::string right = anyCase ? lcase(toText(a[1])) : toText(a[1]);
    const int order = left.compare(right);
    return Value::ofWhole(order < 0 ? -1 : (order > 0 ? 1 : 0));
}

Value isNumeric(Arguments a, RandomState&) {
    if (a[0].kind == Kind::String) return Value::ofBoolean(isNumberText(a[0].text));
    return Value::ofBoolean(a[0].kind != Kind::Null);
}

Value isEmpty(Arguments a, RandomState&) { return Value::ofBoolean(a[0].kind == Kind::Empty); }
Value isNull(Arguments a, RandomState&) { return Value::ofBoolean(a[0].kind == Kind::Null); }
Value typeName(Arguments a, RandomState&) { return Value::ofString(kindName(a[0].kind)); }

Value varType(Arguments a, RandomState&) {
    constexpr int types[] = {0, 1, 11, 17, 2, 3, 4, 5, 8};  // in the order of Kind
    return Value::ofWhole(types[static_cast<std::size_t>(a[0].kind)]);
}

constexpr std::array builtins = {
    FunctionEntry{"abs", 1, 1, absolute},
    FunctionEntry{"asc", 1, 1, ascOf},
    FunctionEntry{"atn", 1, 1, numeric<std::atan>},
    FunctionEntry{"cbool", 1, 1, convertBoolean},
    FunctionEntry{"cbyte", 1, 1, convertByte},
    FunctionEntry{"cdbl", 1, 1, convertDouble},
    FunctionEntry{"chr", 1, 1, chrOf},
    FunctionEntry{"cint", 1, 1, convertInt},
    FunctionEntry{"clng", 1, 1, convertLong},
    FunctionEntry{"cos", 1, 1, numeric<std::cos>},
    FunctionEntry{"csng", 1, 1, convertSingle},
    FunctionEntry{"cstr", 1, 1, convertText},
    FunctionEntry{"exp", 1, 1, numeric<std::exp>},
    FunctionEntry{"fix", 1, 1, fixOf},
    FunctionEntry{"hex", 1, 1, hexOf},
    FunctionEntry{"instr", 2, 4, inStr},
    FunctionEntry{"instrrev", 2, 4, inStrRev},
    FunctionEntry{"int", 1, 1, intOf},
    FunctionEntry{"isempty", 1, 1, isEmpty},
    FunctionEntry{"isnull", 1, 1, isNull},
    FunctionEntry{"isnumeric", 1, 1, isNumeric},
    FunctionEntry{"lcase", 1, 1, textual<lcase>},
    FunctionEntry{"left", 2, 2, leftOf},
    FunctionEntry{"len", 1, 1, length},
    FunctionEntry{"log", 1, 1, numeric<checkedLog>},
    FunctionEntry{"ltrim", 1, 1, textual<trimLeft>},
    FunctionEntry{"mid", 2, 3, midOf},
    FunctionEntry{"oct", 1, 1, octOf},
    FunctionEntry{"randomize", 0, 1, randomize},
    FunctionEntry{"replace", 3, 6, replaceIn},
    FunctionEntry{"right", 2, 2, rightOf},
    FunctionEntry{"rnd", 0, 1, randomOf},
    FunctionEntry{"round", 1, 2, roundOf},
    FunctionEntry{"rtrim", 1, 1, textual<trimRight>},
    FunctionEntry{"sgn", 1, 1, signOf},
    FunctionEntry{"sin", 1, 1, numeric<std::sin>},
    FunctionEntry{"space", 1, 1, space},
    FunctionEntry{"sqr", 1, 1, numeric<checkedRoot>},
    FunctionEntry{"strcomp", 2, 3, strComp},
    FunctionEntry{"string", 2, 2, stringOf},
    FunctionEntry{"strreverse", 1, 1, textual<reversed>},
    FunctionEntry{"tan", 1, 1, numeric<std::tan>},
    FunctionEntry{"trim", 1, 1, textual<trim>},
    FunctionEntry{"typename", 1, 1, typeName},
    FunctionEntry{"ucase", 1, 1, textual<ucase>},
    FunctionEntry{"vartype", 1, 1, varType},
};

Value piOf(Arguments, RandomState&) { return Value::ofDouble(MathLibrary::Pi()); }

Value radiusOf(Arguments a, RandomState&) {
    return Value::ofDouble(finite(MathLibrary::Radius(number(a), number(a, 1))));
}

Value powOf(Arguments a, RandomState&) { return Value::ofDouble(MathLibrary::pow(number(a), number(a, 1))); }

Value millisecondsOf(Arguments a, RandomState&) {
    return Value::ofDouble(MathLibrary::Milliseconds(toInt16(number(a))));
}

constexpr std::array members = {
    FunctionEntry{"area", 1, 1, numeric<MathLibrary::Area>},
    FunctionEntry{"circumference", 1, 1, numeric<MathLibrary::Circumference>},
    FunctionEntry{"cot", 1, 1, numeric<MathLibrary::Cot>},
    FunctionEntry{"csc", 1, 1, numeric<MathLibrary::Csc>},
    FunctionEntry{"degrees", 1, 1, numeric<MathLibrary::Degrees>},
    FunctionEntry{"diameter", 1, 1, numeric<MathLibrary::Diameter>},
    FunctionEntry{"milliseconds", 1, 1, millisecondsOf},
    FunctionEntry{"pi", 0, 0, piOf},
    FunctionEntry{"pow", 2, 2, powOf},
    FunctionEntry{"radians", 1, 1, numeric<MathLibrary::Radians>},
    FunctionEntry{"radius", 2, 2, radiusOf},
    FunctionEntry{"sec", 1, 1, numeric<MathLibrary::Sec>},
};

}  // namespace

float RandomState::next() {
    // The multiplier and the increment of the language's own 24-bit linear congruential generator.
    bits = (bits * 0x43FD43FDU + 0xC39EC3U) & 0xFFFFFFU;
    return static_cast<float>(bits) / 16777216.0F;
}

void RandomState::seed(double number) {
    const auto raw = std::bit_cast<std::uint32_t>(
        static_cast<float>(std::clamp(number, -static_cast<double>(std::numeric_limits<float>::max()),
                                      static_cast<double>(std::numeric_limits<float>::max()))));
    bits = (raw + (raw >> 24U)) & 0xFFFFFFU;
}

std::span<const FunctionEntry> builtinFunctions() { return builtins; }

std::span<const FunctionEntry> mathLibMembers() { return members; }

int findFunction(std::span<const FunctionEntry> table, std::string_view name) {
    const auto found =
        std::lower_bound(table.begin(), table.end(), name,
                         [](const FunctionEntry& entry, std::string_view key) { return entry.name < key; });
    if (found == table.end() || found->name != name) return -1;
    return static_cast<int>(found - table.begin());
}

}  // namespace zg
