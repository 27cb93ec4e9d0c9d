#include "graph/script/ScriptEngine.h"

#include <chrono>
#include <utility>

#include "base/Text.h"
#include "graph/script/Compiler.h"
#include "graph/script/Parser.h"

namespace zg {

using script::CompiledCode;
using script::Global;
using script::Value;
using script::ValueType;

namespace {

std::int64_t steadyMilliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

/// A result as a number; if it is not one, the error is at the start of the expression.
double numberOf(const Value& value, std::string_view text) {
    try {
        return script::toNumber(value);
    } catch (const RunTimeError& error) {
        throw ScriptError(error.number, error.description, text, 0);
    }
}

}  // namespace

ScriptEngine::ScriptEngine(Clock clock) {
    context_.clock = clock ? std::move(clock) : Clock(steadyMilliseconds);
}

void ScriptEngine::Language(std::string_view name) {
    if (lcase(name) != "vbscript") raise(ScriptErrorNumber::InvalidPropertyValue);
    language_ = "VBScript";
}

void ScriptEngine::Timeout(std::int32_t milliseconds) {
    if (milliseconds < -1) raise(ScriptErrorNumber::InvalidPropertyValue);
    timeoutMs_ = milliseconds;
}

void ScriptEngine::AddObject(std::string_view name, const MathLibrary&) {
    globals_[globals_.indexOf(lcase(name))] = {Value(ValueType::Object, nullptr), true, true, true};
    ++namesVersion_;
}

void ScriptEngine::AddCode(std::string_view text) {
    const CompiledCode code = script::compileCode(text, globals_);
    if (!code.variables.empty() || !code.procedures.empty()) ++namesVersion_;
    script::install(code, globals_);
    machine_.run(code.main, timeoutMs_);
}

Value ScriptEngine::Eval(std::string_view text) {
    return machine_.run(script::compileExpression(text, script::parseExpression(text), globals_), timeoutMs_);
}

double ScriptEngine::evalNumber(std::string_view text) { return numberOf(Eval(text), text); }

CompiledExpression ScriptEngine::compile(std::string_view text) {
    CompiledExpression made;
    made.text_ = text;
    made.namesVersion_ = namesVersion_;
    script::Syntax syntax = script::parseExpression(text);
    made.isNumeric_ = made.numeric_.compile(syntax, globals_);
    made.general_ = script::compileExpression(text, std::move(syntax), globals_);
    return made;
}

/// Evaluates without the fast form, or to find its error. The expression is first recompiled if necessary.
double ScriptEngine::evaluateAnew(CompiledExpression& expression) {
    if (expression.namesVersion_ != namesVersion_) expression = compile(expression.text_);
    return numberOf(machine_.run(expression.general_, timeoutMs_), expression.text_);
}

VariableSlot ScriptEngine::slot(std::string_view name) {
    Global& global = globals_[globals_.indexOf(lcase(name))];
    if (global.constant) raise(ScriptErrorNumber::IllegalAssignment);
    if (!global.declared) ++namesVersion_;
    global.exists = true;
    global.declared = true;
    return VariableSlot(global);
}

}  // namespace zg
