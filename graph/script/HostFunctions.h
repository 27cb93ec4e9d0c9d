#pragma once

// The functions that scripts can call: the language's own and the members of the objects added to the engine.
// A function is one row of a table; what a formula may call without a value's detour has a plain form beside
// it.

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "graph/script/Limits.h"
#include "graph/script/Value.h"

namespace zg::script {

/// The language's pseudo-random numbers: a 24-bit congruential sequence that starts the same in every engine.
class RandomNumbers {
 public:
    /// The next number, at least 0 and below 1.
    float next();
    float last() const;
    /// Starts over at the place that a negative argument of Rnd stands for.
    void restart(float place);
    /// Mixes a number into the place, as Randomize does.
    void seed(double number);

 private:
    std::uint32_t place_ = 0x50000;
};

/// What functions reach of the engine they run in.
struct HostContext {
    std::shared_ptr<MemoryBudget> budget = std::make_shared<MemoryBudget>();
    RandomNumbers random;
    /// Milliseconds of a clock that only moves forward.
    std::function<std::int64_t()> clock;
    /// Called now and then while code runs; empty calls nothing.
    std::function<void()> whileRunning;
    std::int64_t stepsToClockCheck = stepsBetweenClockChecks;

    /// Counts work on long texts as steps, so that the time-out sees it.
    void spend(std::size_t characters) { stepsToClockCheck -= static_cast<std::int64_t>(characters / 16); }
    Value text(std::string content) const { return Value::text(std::move(content), budget); }
};

using Arguments = std::span<const Value>;

struct HostFunction {
    std::string_view name;  ///< in lower case
    std::uint8_t fewest;
    std::uint8_t most;
    Value (*function)(HostContext& context, Arguments arguments);
    /// The same on one, two or no plain numbers; not finite where `function` would raise. Null where the
    /// result is no plain number or depends on more than the arguments.
    double (*unary)(double) = nullptr;
    double (*binary)(double, double) = nullptr;
    double (*nullary)() = nullptr;
};

/// The language's function of that lower-case name, null where there is none.
const HostFunction* findFunction(std::string_view name);

/// The member of the MathLibrary object of that lower-case name, null where there is none.
const HostFunction* findMathMember(std::string_view name);

/// The tables by subject.
std::span<const HostFunction> numericFunctions();
std::span<const HostFunction> conversionFunctions();
std::span<const HostFunction> textFunctions();
std::span<const HostFunction> mathMembers();

}  // namespace zg::script
