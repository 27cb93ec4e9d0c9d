#pragma once

// The functions that scripts can call: the language's own and the members of the objects added to the engine.
// A function is one row of a table; if a formula can call it on plain doubles, the row also has a plain form.

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "graph/script/Limits.h"
#include "graph/script/Value.h"

namespace zg::script {

/// The language's pseudo-random numbers: a 24-bit congruential generator that starts the same in every
/// engine.
class RandomNumbers {
 public:
    /// The next number, at least 0 and below 1.
    float next();
    float last() const;
    /// Restarts at the state given by a negative argument of Rnd.
    void restart(float place);
    /// Mixes a number into the state, as Randomize does.
    void seed(double number);

 private:
    std::uint32_t place_ = 0x50000;
};

/// What functions can access in the engine that runs them.
struct HostContext {
    std::shared_ptr<MemoryBudget> budget = std::make_shared<MemoryBudget>();
    RandomNumbers random;
    /// Milliseconds of a monotonic clock.
    std::function<std::int64_t()> clock;
    /// Called at intervals while code runs; may be empty.
    std::function<void()> whileRunning;
    std::int64_t stepsToClockCheck = stepsBetweenClockChecks;

    /// Counts work on long texts as steps, so that the time-out applies to it.
    void spend(std::size_t characters) { stepsToClockCheck -= static_cast<std::int64_t>(characters / 16); }
    Value text(std::string content) const { return Value::text(std::move(content), budget); }
};

using Arguments = std::span<const Value>;

struct HostFunction {
    std::string_view name;  ///< in lower case
    std::uint8_t fewest;
    std::uint8_t most;
    Value (*function)(HostContext& context, Arguments arguments);
    /// The same for one, two or no plain doubles; not finite if `function` would raise an error. Null if the
    /// result is not a plain number or depends on more than the arguments.
    double (*unary)(double) = nullptr;
    double (*binary)(double, double) = nullptr;
    double (*nullary)() = nullptr;
};

/// The language's function of that lower-case name, null if there is none.
const HostFunction* findFunction(std::string_view name);

/// The member of the MathLibrary object of that lower-case name, null if there is none.
const HostFunction* findMathMember(std::string_view name);

/// The tables by subject.
std::span<const HostFunction> numericFunctions();
std::span<const HostFunction> conversionFunctions();
std::span<const HostFunction> textFunctions();
std::span<const HostFunction> mathMembers();

}  // namespace zg::script
