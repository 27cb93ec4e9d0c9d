#pragma once

// A script engine for a subset of VBScript. Lexer, parser, compiler and machine each know only the output of
// the one before; this class has the state: the global names, the pseudo-random numbers, the time-out.
// Statements and expressions can be given as text at any time; an expression that is needed many times is
// compiled once and then evaluated for every value of its variables, formulas over numbers in a form without
// types.

#include <cmath>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "base/MathLibrary.h"
#include "graph/script/Code.h"
#include "graph/script/Globals.h"
#include "graph/script/Machine.h"
#include "graph/script/NumericCode.h"
#include "graph/script/ScriptError.h"
#include "graph/script/Value.h"

namespace zg {

/// An expression compiled by a ScriptEngine, which must outlive it.
class CompiledExpression {
 private:
    friend class ScriptEngine;

    std::string text_;
    std::uint64_t namesVersion_ = 0;  ///< the engine's count when the expression was compiled
    bool isNumeric_ = false;
    script::NumericCode numeric_;  ///< the fast form, if there is one
    script::CodeBlock general_;
};

/// A global variable of a ScriptEngine, looked up once and then set without its name. The engine must outlive
/// it.
class VariableSlot {
 private:
    friend class ScriptEngine;

    explicit VariableSlot(script::Global& global) : global_(&global) {}

    script::Global* global_;
};

class ScriptEngine {
 public:
    /// Milliseconds of a monotonic clock.
    using Clock = std::function<std::int64_t()>;

    /// Without a clock from the caller it uses the machine's steady one.
    explicit ScriptEngine(Clock clock = {});
    ScriptEngine(const ScriptEngine&) = delete;
    ScriptEngine& operator=(const ScriptEngine&) = delete;

    /// "VBScript", in any letter case when set; raises 380 for any other language.
    const std::string& Language() const { return language_; }
    void Language(std::string_view name);

    /// How many milliseconds one call may run before it raises 32811; -1 is no limit, anything lower raises
    /// 380.
    std::int32_t Timeout() const { return timeoutMs_; }
    void Timeout(std::int32_t milliseconds);

    /// A function to be called at intervals while a script runs; empty for none. An exception from it ends
    /// the script and reaches the caller: a RunTimeError with the place in the script, any other unchanged.
    /// Its time does not count as the script's. It must not use this engine.
    void whileRunning(std::function<void()> act) { context_.whileRunning = std::move(act); }

    /// Makes the library's operations available as members of `name`.
    void AddObject(std::string_view name, const MathLibrary& library);

    /// Runs statements; procedures and variables remain for later calls. Raises a ScriptError; the statements
    /// before the failing one have then taken effect. A text with a syntax error has no effect.
    void AddCode(std::string_view text);

    /// The value of an expression, Empty for a text without one. Raises a ScriptError.
    script::Value Eval(std::string_view text);
    /// The same as a number: 0 for Empty, -1 for True, the number in a text. Also raises 13 and 94.
    double evalNumber(std::string_view text);

    /// Raises a ScriptError for a text that is not an expression.
    CompiledExpression compile(std::string_view text);
    /// Like evalNumber, for an expression compiled by this engine. Names have their present meaning, also if
    /// code was added after compiling.
    double evaluateNumber(CompiledExpression& expression);
    /// Whether the expression has the fast form, which most formulas over numbers have.
    static bool isNumericForm(const CompiledExpression& expression) { return expression.isNumeric_; }

    /// The variable of that name, which is created if necessary. Raises 501 for the name of a constant,
    /// object or procedure.
    VariableSlot slot(std::string_view name);
    /// Makes the variable a Double; the value must be finite.
    void setNumber(VariableSlot slot, double value);

 private:
    double evaluateAnew(CompiledExpression& expression);

    std::string language_ = "VBScript";
    std::int32_t timeoutMs_ = 10'000;
    /// Number of texts that declared names, which may change the meaning of a compiled name.
    std::uint64_t namesVersion_ = 0;
    script::Globals globals_;
    script::HostContext context_;
    script::Machine machine_{globals_, context_};
};

inline double ScriptEngine::evaluateNumber(CompiledExpression& expression) {
    if (expression.isNumeric_ && expression.namesVersion_ == namesVersion_) {
        const double result = expression.numeric_.evaluate();
        if (std::isfinite(result)) return result;
    }
    return evaluateAnew(expression);
}

inline void ScriptEngine::setNumber(VariableSlot slot, double value) {
    if (slot.global_->constant) raise(ScriptErrorNumber::IllegalAssignment);
    slot.global_->value.setNumber(value);
}

}  // namespace zg
