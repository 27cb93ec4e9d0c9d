#include "graph/script/Value.h"

#include <cmath>
#include <limits>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/script/Limits.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

TextPayload::TextPayload(std::string content, std::shared_ptr<MemoryBudget> charged)
    : text(std::move(content)), budget(std::move(charged)) {
    if (budget) budget->characters += text.size();
}

TextPayload::~TextPayload() {
    if (budget) budget->characters -= text.size();
}

Value Value::text(std::string content, const std::shared_ptr<MemoryBudget>& budget) {
    if (content.size() > maxTextLength || (budget && budget->characters + content.size() > maxTextTotal))
        raise(ScriptErrorNumber::OutOfMemory);
    return {ValueType::Text, std::make_shared<TextPayload>(std::move(content), budget)};
}

Value Value::reference(Value* target) {
    Value out;
    out.type_ = ValueType::Reference;
    out.target_ = target;
    return out;
}

const char* typeName(ValueType type) {
    switch (type) {
        case ValueType::Empty:
            return "Empty";
        case ValueType::Boolean:
            return "Boolean";
        case ValueType::Byte:
            return "Byte";
        case ValueType::Integer:
            return "Integer";
        case ValueType::Long:
            return "Long";
        case ValueType::Double:
            return "Double";
        case ValueType::Single:
            return "Single";
        case ValueType::Text:
            return "String";
        case ValueType::Null:
            return "Null";
        case ValueType::Object:
            return "MathLibrary";
        case ValueType::Array:
            return "Variant()";
        case ValueType::Procedure:
        case ValueType::Reference:
            break;
    }
    return "Unknown";
}

int typeCode(ValueType type) {
    switch (type) {
        case ValueType::Empty:
            return 0;
        case ValueType::Null:
            return 1;
        case ValueType::Integer:
            return 2;
        case ValueType::Long:
            return 3;
        case ValueType::Single:
            return 4;
        case ValueType::Double:
            return 5;
        case ValueType::Text:
            return 8;
        case ValueType::Object:
            return 9;
        case ValueType::Boolean:
            return 11;
        case ValueType::Byte:
            return 17;
        case ValueType::Array:
            return 8204;
        case ValueType::Procedure:
        case ValueType::Reference:
            break;
    }
    return 13;
}

double toNumber(const Value& value) {
    if (value.isNumber()) return value.number();
    if (value.is(ValueType::Text)) return toDouble(value.text());
    if (value.is(ValueType::Null)) raise(ScriptErrorNumber::InvalidUseOfNull);
    if (value.is(ValueType::Object)) raise(ScriptErrorNumber::UnsupportedMember);
    raise(ErrorNumber::TypeMismatch);
}

std::int32_t toLong(const Value& value) { return toInt32(toNumber(value)); }

std::string toText(const Value& value) {
    switch (value.type()) {
        case ValueType::Text:
            return value.text();
        case ValueType::Empty:
            return {};
        case ValueType::Boolean:
            return boolText(value.number() != 0);
        case ValueType::Single:
            return singleText(static_cast<float>(value.number()));
        default:
            return doubleText(toNumber(value));
    }
}

bool toCondition(const Value& value) {
    if (value.isNumber()) return value.number() != 0;
    if (value.is(ValueType::Null)) return false;
    if (value.is(ValueType::Text)) return toBool(value.text());
    return toNumber(value) != 0;
}

Value widened(ValueType narrowest, double whole) {
    whole += 0.0;  // a whole number has no negative zero
    if (narrowest == ValueType::Byte && whole >= 0 && whole <= 255) return {ValueType::Byte, whole};
    if (narrowest <= ValueType::Integer && whole >= -32768 && whole <= 32767)
        return {ValueType::Integer, whole};
    if (narrowest <= ValueType::Long && whole >= std::numeric_limits<std::int32_t>::min() &&
        whole <= std::numeric_limits<std::int32_t>::max())
        return {ValueType::Long, whole};
    return Value(whole);
}

Value singleOrDouble(double result) {
    const auto narrow = static_cast<float>(result);
    if (std::isfinite(narrow)) return {ValueType::Single, narrow};
    return checkedDouble(result);
}

Value checkedDouble(double result) {
    if (!std::isfinite(result)) raise(ErrorNumber::Overflow);
    return Value(result);
}

}  // namespace zg::script
