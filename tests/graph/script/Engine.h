#pragma once

#include <gtest/gtest.h>

#include <string>

#include "graph/script/ScriptEngine.h"

/// An engine for a test, with MathLib and a clock that stands still until it is moved.
struct Engine {
    std::int64_t now = 0;
    zg::ScriptEngine script{[this] { return now; }};

    Engine() { script.AddObject("MathLib"); }

    /// The value as "Kind text".
    std::string eval(const std::string& text) {
        const zg::Value value = script.Eval(text);
        return std::string(zg::kindName(value.kind)) +
               (value.kind == zg::Kind::Null || value.kind == zg::Kind::Empty ? "" : " " + zg::toText(value));
    }

    /// What the statements or the expression raise as "number column", "" where they raise nothing.
    std::string errorOfCode(const std::string& text) {
        return errorOf([&] { script.AddCode(text); });
    }
    std::string errorOfEval(const std::string& text) {
        return errorOf([&] { script.Eval(text); });
    }

 private:
    template <typename Act>
    static std::string errorOf(Act act) {
        try {
            act();
        } catch (const zg::ScriptError& error) {
            EXPECT_FALSE(error.description.empty());
            return std::to_string(error.number) + " " + std::to_string(error.position.line) + ":" +
                   std::to_string(error.position.column);
        }
        return {};
    }
};

struct Row {
    const char* source;
    const char* result;
};
