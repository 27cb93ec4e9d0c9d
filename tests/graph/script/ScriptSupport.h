#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "graph/script/ScriptEngine.h"

/// A value with its type name as scripts know it: "Integer 6", "String abc", "Empty".
inline std::string shown(const zg::script::Value& value) {
    std::string out = zg::script::typeName(value.type());
    if (value.is(zg::script::ValueType::Empty) || value.is(zg::script::ValueType::Null) ||
        value.is(zg::script::ValueType::Object))
        return out;
    return out + " " + zg::script::toText(value);
}

/// The value of an expression in a fresh engine that knows MathLib, after running the code.
inline std::string evaluated(std::string_view expression, std::string_view code = "") {
    zg::ScriptEngine engine;
    engine.AddObject("MathLib", zg::MathLibrary{});
    engine.AddCode(code);
    return shown(engine.Eval(expression));
}

/// The error of a statement, as "line 1, column 5: 11 Division by zero"; "" if there is none.
template <typename Statement>
std::string scriptError(Statement statement) {
    try {
        statement();
    } catch (const zg::ScriptError& error) {
        return "line " + std::to_string(error.line) + ", column " + std::to_string(error.column) + ": " +
               std::to_string(error.number) + " " + error.description;
    }
    return {};
}

/// The same for an expression, and for code, each in a fresh engine that knows MathLib.
inline std::string evalError(std::string_view expression, std::string_view code = "") {
    zg::ScriptEngine engine;
    engine.AddObject("MathLib", zg::MathLibrary{});
    engine.AddCode(code);
    return scriptError([&] { engine.Eval(expression); });
}

inline std::string codeError(std::string_view code) {
    zg::ScriptEngine engine;
    engine.AddObject("MathLib", zg::MathLibrary{});
    return scriptError([&] { engine.AddCode(code); });
}

/// An expression and its expected value.
struct Evaluation {
    const char* expression;
    const char* result;
};

inline void PrintTo(const Evaluation& row, std::ostream* out) { *out << row.expression; }
