#pragma once

// Runs formulas and statements that users type. All state is in the engine: variables and procedures live
// from one call to the next.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "graph/script/FastProgram.h"
#include "graph/script/Machine.h"

namespace zg {

/// An expression that is evaluated many times. It belongs to the engine that made it.
class CompiledExpression {
 public:
    CompiledExpression() = default;

 private:
    friend class ScriptEngine;
    std::string source_;
    Chunk chunk_;
    std::optional<FastProgram> fast_;
    std::uint32_t definitions_ = 0;
};

/// A variable that the host sets before each evaluation.
struct VariableSlot {
    std::int32_t symbol = 0;
};

class ScriptEngine {
 public:
    /// The clock serves the time-out.
    explicit ScriptEngine(ScriptClock clock);

    /// "VBScript" is the one language that there is; raises 380, "Invalid property value", for another.
    void Language(std::string_view language);
    const std::string& Language() const { return language_; }

    /// Milliseconds that one call may take; below 0 there is no limit.
    std::int32_t Timeout = 10000;

    /// Makes the math library reachable under a name, as "MathLib.Pi".
    void AddObject(std::string_view name);

    /// Compiles the text and runs its statements. Nothing of a text that does not compile takes effect.
    void AddCode(std::string_view text);

    /// The value of the one expression that the text is.
    Value Eval(std::string_view text);

    /// The same as a number; raises 13 for a text that is none.
    double EvalNumber(std::string_view text) { return toNumber(Eval(text)); }

    CompiledExpression compile(std::string_view text);
    VariableSlot slot(std::string_view name);

    void setNumber(VariableSlot slot, double value) {
        Value& variable = symbols_[slot.symbol].value;
        variable.kind = Kind::Double;
        variable.number = value;
    }

    /// No parsing and no allocation happens while names keep their meaning.
    double evaluateNumber(CompiledExpression& expression) {
        double result = 0;
        if (expression.definitions_ == definitions_ && expression.fast_ &&
            expression.fast_->run(symbols_, result))
            return result;
        return evaluateInGeneral(expression);
    }

 private:
    Value run(const Chunk& chunk);
    double evaluateInGeneral(CompiledExpression& expression);

    ScriptClock clock_;
    std::string language_ = "VBScript";
    SymbolTable symbols_;
    ScriptSettings settings_;
    RandomState random_;
    std::uint32_t definitions_ = 1;  ///< grows when names may have got another meaning
};

}  // namespace zg
