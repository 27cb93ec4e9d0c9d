#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/script/HostFunctions.h"
#include "graph/script/NumericFunctions.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

namespace {

/// A count of characters; raises 5 below 0.
std::size_t countOf(const Value& value) {
    const std::int32_t count = toLong(value);
    if (count < 0) raise(ErrorNumber::InvalidProcedureCall);
    return static_cast<std::size_t>(count);
}

/// A position from 1; raises 5 below 1.
std::size_t positionOf(const Value& value) {
    const std::size_t position = countOf(value);
    if (position == 0) raise(ErrorNumber::InvalidProcedureCall);
    return position;
}

Value whole(std::size_t number) { return {ValueType::Long, static_cast<double>(number)}; }

/// Whether the argument at that index asks for a comparison that ignores letter case: 1 does, 0 does not.
bool ignoringCase(Arguments arguments, std::size_t place) {
    if (arguments.size() <= place) return false;
    const std::int32_t mode = toLong(arguments[place]);
    if (mode != 0 && mode != 1) raise(ErrorNumber::InvalidProcedureCall);
    return mode == 1;
}

std::string foldedText(const Value& value, bool ignoreCase) {
    return ignoreCase ? lcase(toText(value)) : toText(value);
}

template <std::string (*operation)(const std::string&)>
Value changed(HostContext& context, Arguments arguments) {
    if (arguments[0].is(ValueType::Null)) return arguments[0];
    const std::string text = toText(arguments[0]);
    context.spend(text.size());
    return context.text(operation(text));
}

std::string upper(const std::string& text) { return ucase(text); }
std::string lower(const std::string& text) { return lcase(text); }
std::string bothTrimmed(const std::string& text) { return trim(text); }

std::string leftTrimmed(const std::string& text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string rightTrimmed(const std::string& text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

Value len(HostContext&, Arguments arguments) {
    if (arguments[0].is(ValueType::Null)) return arguments[0];
    return whole(toText(arguments[0]).size());
}

Value left(HostContext& context, Arguments arguments) {
    const std::size_t count = countOf(arguments[1]);
    if (arguments[0].is(ValueType::Null)) return arguments[0];
    return context.text(leftN(toText(arguments[0]), count));
}

Value right(HostContext& context, Arguments arguments) {
    const std::size_t count = countOf(arguments[1]);
    if (arguments[0].is(ValueType::Null)) return arguments[0];
    return context.text(rightN(toText(arguments[0]), count));
}

Value mid(HostContext& context, Arguments arguments) {
    const std::size_t start = positionOf(arguments[1]);
    const std::size_t count = arguments.size() > 2 ? countOf(arguments[2]) : maxTextLength;
    if (arguments[0].is(ValueType::Null)) return arguments[0];
    return context.text(midN(toText(arguments[0]), start, count));
}

/// The work of a search in the worst case, if every start nearly matches.
void spendSearch(HostContext& context, std::size_t text, std::size_t wanted) {
    context.spend(text + text * (wanted / 64));
}

/// InStr([start,] text, wanted [, mode]): the first of three or four arguments is the start.
Value inStr(HostContext& context, Arguments arguments) {
    const bool hasStart = arguments.size() > 2;
    const std::size_t first = hasStart ? 1 : 0;
    const std::size_t start = hasStart ? positionOf(arguments[0]) : 1;
    const bool ignoreCase = ignoringCase(arguments, 3);
    if (arguments[first].is(ValueType::Null) || arguments[first + 1].is(ValueType::Null))
        return Value::null();
    const std::string text = foldedText(arguments[first], ignoreCase);
    const std::string wanted = foldedText(arguments[first + 1], ignoreCase);
    spendSearch(context, text.size(), wanted.size());
    if (text.empty() || start > text.size()) return whole(0);
    const std::size_t found = text.find(wanted, start - 1);
    return whole(found == std::string::npos ? 0 : found + 1);
}

/// InStrRev(text, wanted [, start [, mode]]): the match must end at or before `start`; -1 is the end of the
/// text.
Value inStrRev(HostContext& context, Arguments arguments) {
    const bool ignoreCase = ignoringCase(arguments, 3);
    const std::int32_t start = arguments.size() > 2 ? toLong(arguments[2]) : -1;
    if (start == 0 || start < -1) raise(ErrorNumber::InvalidProcedureCall);
    if (arguments[0].is(ValueType::Null) || arguments[1].is(ValueType::Null)) return Value::null();
    const std::string text = foldedText(arguments[0], ignoreCase);
    const std::string wanted = foldedText(arguments[1], ignoreCase);
    spendSearch(context, text.size(), wanted.size());
    const std::size_t end = start == -1 ? text.size() : static_cast<std::size_t>(start);
    if (end > text.size() || wanted.size() > end) return whole(0);
    if (wanted.empty()) return whole(end);
    const std::size_t found = text.rfind(wanted, end - wanted.size());
    return whole(found == std::string::npos ? 0 : found + 1);
}

std::string replaced(const std::string& text, std::size_t from, const Value& wantedValue,
                     const std::string& replacement, std::int32_t most, bool ignoreCase) {
    const std::string wanted = foldedText(wantedValue, ignoreCase);
    const std::string searched = ignoreCase ? lcase(text) : text;
    std::string out;
    std::size_t kept = from;
    for (std::int32_t count = 0; !wanted.empty() && (most == -1 || count < most); ++count) {
        const std::size_t found = searched.find(wanted, kept);
        if (found == std::string::npos) break;
        out.append(text, kept, found - kept).append(replacement);
        if (out.size() > maxTextLength) raise(ScriptErrorNumber::OutOfMemory);
        kept = found + wanted.size();
    }
    return out.append(text, kept);
}

/// Replace(text, wanted, replacement [, start [, count [, mode]]]): the text before `start` is dropped.
Value replace(HostContext& context, Arguments arguments) {
    const std::size_t start = arguments.size() > 3 ? positionOf(arguments[3]) : 1;
    const std::int32_t most = arguments.size() > 4 ? toLong(arguments[4]) : -1;
    if (most < -1) raise(ErrorNumber::InvalidProcedureCall);
    const bool ignoreCase = ignoringCase(arguments, 5);
    const std::string text = toText(arguments[0]);
    const std::string replacement = toText(arguments[2]);
    spendSearch(context, text.size(), toText(arguments[1]).size());
    if (start > text.size()) return context.text({});
    return context.text(replaced(text, start - 1, arguments[1], replacement, most, ignoreCase));
}

Value space(HostContext& context, Arguments arguments) {
    const std::size_t count = countOf(arguments[0]);
    if (count > maxTextLength) raise(ScriptErrorNumber::OutOfMemory);
    return context.text(std::string(count, ' '));
}

/// String(count, character): the first character of a text, or the one with that code, modulo 256.
Value repeated(HostContext& context, Arguments arguments) {
    const std::size_t count = countOf(arguments[0]);
    if (arguments[1].is(ValueType::Null)) return arguments[1];
    char character = 0;
    if (arguments[1].is(ValueType::Text)) {
        if (arguments[1].text().empty()) raise(ErrorNumber::InvalidProcedureCall);
        character = arguments[1].text().front();
    } else {
        character = static_cast<char>(static_cast<unsigned char>(toLong(arguments[1]) & 0xFF));
    }
    if (count > maxTextLength) raise(ScriptErrorNumber::OutOfMemory);
    return context.text(std::string(count, character));
}

Value strReverse(HostContext& context, Arguments arguments) {
    std::string text = toText(arguments[0]);
    context.spend(text.size());
    std::reverse(text.begin(), text.end());
    return context.text(std::move(text));
}

Value asc(HostContext&, Arguments arguments) {
    const std::string text = toText(arguments[0]);
    if (text.empty()) raise(ErrorNumber::InvalidProcedureCall);
    return {ValueType::Integer, static_cast<double>(static_cast<unsigned char>(text.front()))};
}

Value chr(HostContext& context, Arguments arguments) {
    const std::int32_t code = toLong(arguments[0]);
    if (code < 0 || code > 255) raise(ErrorNumber::InvalidProcedureCall);
    return context.text(std::string(1, static_cast<char>(static_cast<unsigned char>(code))));
}

Value strComp(HostContext& context, Arguments arguments) {
    const bool ignoreCase = ignoringCase(arguments, 2);
    if (arguments[0].is(ValueType::Null) || arguments[1].is(ValueType::Null)) return Value::null();
    const std::string first = foldedText(arguments[0], ignoreCase);
    context.spend(first.size());
    return {ValueType::Integer, signOf(first.compare(foldedText(arguments[1], ignoreCase)))};
}

constexpr HostFunction textTable[] = {
    {"asc", 1, 1, asc},
    {"chr", 1, 1, chr},
    {"instr", 2, 4, inStr},
    {"instrrev", 2, 4, inStrRev},
    {"lcase", 1, 1, changed<lower>},
    {"left", 2, 2, left},
    {"len", 1, 1, len},
    {"ltrim", 1, 1, changed<leftTrimmed>},
    {"mid", 2, 3, mid},
    {"replace", 3, 6, replace},
    {"right", 2, 2, right},
    {"rtrim", 1, 1, changed<rightTrimmed>},
    {"space", 1, 1, space},
    {"strcomp", 2, 3, strComp},
    {"string", 2, 2, repeated},
    {"strreverse", 1, 1, strReverse},
    {"trim", 1, 1, changed<bothTrimmed>},
    {"ucase", 1, 1, changed<upper>},
};

}  // namespace

std::span<const HostFunction> textFunctions() { return textTable; }

}  // namespace zg::script
