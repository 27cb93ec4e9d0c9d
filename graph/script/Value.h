#pragma once

// A script's value: a number of some width, a text, Null, or one of the things that only a variable can hold.

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace zg::script {

/// The order matters: up to Double a value can be used as the double that it holds, whatever the formula does
/// with it.
enum class ValueType : std::uint8_t {
    Empty,
    Boolean,
    Byte,
    Integer,
    Long,
    Double,
    Single,
    Text,
    Null,
    Object,
    Array,      ///< in a variable only
    Procedure,  ///< in a global name only
    Reference,  ///< on the machine's stack only
};

/// What a value holds besides its number.
struct Payload {
    virtual ~Payload() = default;
};

/// What the values of one engine hold.
struct MemoryBudget {
    std::size_t characters = 0;  ///< of all texts
    std::size_t elements = 0;    ///< of all arrays
};

struct TextPayload : Payload {
    TextPayload(std::string content, std::shared_ptr<MemoryBudget> charged);
    ~TextPayload() override;

    std::string text;
    std::shared_ptr<MemoryBudget> budget;  ///< may be null
};

class Value {
 public:
    Value() noexcept {}
    explicit Value(double number) : type_(ValueType::Double), number_(number) {}
    /// A number; it must be in the range of its type.
    Value(ValueType type, double number) : type_(type), number_(number) {}
    Value(ValueType type, std::shared_ptr<Payload> payload) : type_(type), payload_(std::move(payload)) {}

    static Value boolean(bool value) { return {ValueType::Boolean, value ? -1.0 : 0.0}; }
    static Value null() { return {ValueType::Null, 0.0}; }
    /// A text whose length has been checked; its characters are charged to the budget during its lifetime.
    static Value text(std::string content, const std::shared_ptr<MemoryBudget>& budget = nullptr);
    static Value reference(Value* target);

    ValueType type() const { return type_; }
    bool is(ValueType type) const { return type_ == type; }
    /// Empty, Boolean or of a width for which double arithmetic is exact.
    bool isPlainNumber() const { return type_ <= ValueType::Double; }
    /// Plain or a single.
    bool isNumber() const { return type_ <= ValueType::Single; }

    /// The value of a number: 0 for Empty, -1 for True.
    double number() const { return number_; }
    const std::string& text() const { return static_cast<const TextPayload*>(payload_.get())->text; }
    Payload* payload() const { return payload_.get(); }
    Value* target() const { return target_; }

    void setNumber(double number) {
        if (payload_) payload_.reset();
        type_ = ValueType::Double;
        number_ = number;
    }
    void clear() {
        if (payload_) payload_.reset();
        type_ = ValueType::Empty;
        number_ = 0;
    }
    /// The address of the number, valid as long as the value.
    const double* numberAddress() const { return &number_; }

 private:
    ValueType type_ = ValueType::Empty;
    union {
        double number_ = 0;
        Value* target_;
    };
    std::shared_ptr<Payload> payload_;
};

/// "Integer", "Double", "String" and so on, as scripts see them.
const char* typeName(ValueType type);
/// The number that VarType gives.
int typeCode(ValueType type);

/// A number of any type is returned unchanged; a text is converted to a double as a whole. Raises 13 for
/// anything that is not a number, 94 for Null.
double toNumber(const Value& value);
/// Rounded half to even; raises 6 outside 32 bits, and the errors of toNumber.
std::int32_t toLong(const Value& value);
/// "True" or "False", a number's shortest text, "" for Empty. Raises 13 for an object, 94 for Null.
std::string toText(const Value& value);
/// Whether a condition is true; Null is not.
bool toCondition(const Value& value);

/// An integer of the narrowest type that holds it, starting from the given one: Byte, Integer, Long, else
/// Double.
Value widened(ValueType narrowest, double whole);
/// A single if the result fits one, else a double; raises 6 if it is not finite.
Value singleOrDouble(double result);
/// A double; raises 6 if it is not finite.
Value checkedDouble(double result);

}  // namespace zg::script
