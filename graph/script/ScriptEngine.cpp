#include "graph/script/ScriptEngine.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/script/Compiler.h"

namespace zg {

namespace {

constexpr int invalidPropertyValue = 380;

/// The value of a procedure's name is no number, so that fast programs leave it alone.
Symbol asProcedure(const std::shared_ptr<Procedure>& procedure) {
    return {procedure->name, {Kind::Null, 0, {}}, true, false, procedure};
}

}  // namespace

ScriptEngine::ScriptEngine(ScriptClock clock) : clock_(std::move(clock)) {}

void ScriptEngine::Language(std::string_view language) {
    if (lcase(language) != "vbscript") throw RunTimeError(invalidPropertyValue, "Invalid property value");
    language_ = language;
}

void ScriptEngine::AddObject(std::string_view name) {
    settings_.mathObject = lcase(name);
    ++definitions_;
}

void ScriptEngine::AddCode(std::string_view text) {
    const SymbolTable before = symbols_;
    const ScriptSettings settingsBefore = settings_;
    Chunk chunk;
    try {
        Compiler compiler(text, symbols_, settings_);
        chunk = compiler.compileScript();
        for (const auto& procedure : compiler.procedures())
            symbols_[symbols_.intern(procedure->name)] = asProcedure(procedure);
    } catch (...) {
        symbols_ = before;
        settings_ = settingsBefore;
        throw;
    }
    ++definitions_;
    run(chunk);
}

Value ScriptEngine::run(const Chunk& chunk) { return Machine(symbols_, random_, clock_, Timeout).run(chunk); }

Value ScriptEngine::Eval(std::string_view text) {
    return run(Compiler(text, symbols_, settings_).compileExpression());
}

CompiledExpression ScriptEngine::compile(std::string_view text) {
    CompiledExpression expression;
    expression.source_ = text;
    expression.chunk_ = Compiler(text, symbols_, settings_).compileExpression();
    expression.fast_ = FastProgram::of(expression.chunk_);
    expression.definitions_ = definitions_;
    return expression;
}

VariableSlot ScriptEngine::slot(std::string_view name) {
    const std::int32_t symbol = symbols_.intern(lcase(name));
    if (!symbols_[symbol].declared) {
        symbols_[symbol].declared = true;
        ++definitions_;
    }
    return {symbol};
}

double ScriptEngine::evaluateInGeneral(CompiledExpression& expression) {
    if (expression.definitions_ == definitions_) return toNumber(run(expression.chunk_));
    expression = compile(std::string(expression.source_));
    return evaluateNumber(expression);
}

}  // namespace zg
