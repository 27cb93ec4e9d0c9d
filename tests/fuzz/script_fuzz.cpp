// Any text through the script engine: the first line is an expression, the rest is code that runs before it.
// Each gives a value or a ScriptError at a place in its text, both forms of a formula agree, and the engine
// works afterwards.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "graph/script/ScriptEngine.h"
#include "tests/fuzz/Fuzz.h"

namespace {

void check(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

/// The outcome of a script: its number, or its error.
struct Outcome {
    double number = 0;
    std::string error;

    bool operator==(const Outcome& other) const { return error == other.error && number == other.number; }
};

/// Only a ScriptError may be thrown, and its place must be valid.
template <typename Action>
Outcome outcomeOf(std::string_view text, Action action) {
    Outcome outcome;
    try {
        outcome.number = action();
        check(std::isfinite(outcome.number), "a number is finite");
    } catch (const zg::ScriptError& error) {
        const int lines = 1 + static_cast<int>(std::count_if(text.begin(), text.end(),
                                                             [](char c) { return c == '\n' || c == '\r'; }));
        check(error.line >= 1 && error.line <= lines, "an error's line is one of the text");
        check(error.column >= 1 && error.column <= static_cast<int>(text.size()) + 1,
              "an error's column is one of the text");
        check(error.snippet.ends_with("^") && error.number != 0 && !error.description.empty(),
              "an error is complete");
        outcome.error = std::to_string(error.number) + " " + std::to_string(error.line) + ":" +
                        std::to_string(error.column) + " " + error.description;
    }
    return outcome;
}

}  // namespace

FUZZ_TARGET(script) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t lineEnd = std::min(input.find('\n'), input.size());
    const std::string_view expression = input.substr(0, lineEnd);
    const std::string_view code = input.substr(std::min(lineEnd + 1, input.size()));

    std::int64_t now = 0;
    zg::ScriptEngine engine([&now] { return now += 1; });
    engine.Timeout(10);
    engine.AddObject("MathLib", {});
    outcomeOf(code, [&] {
        engine.AddCode(code);
        return 0.0;
    });
    // An error may be in a procedure of the code, which may be the longer text.
    const std::string_view longer = input;
    const auto evaluated = [&] { return outcomeOf(longer, [&] { return engine.evalNumber(expression); }); };
    evaluated();
    try {
        zg::CompiledExpression compiled = engine.compile(expression);
        const zg::VariableSlot t = engine.slot("t");
        for (const double value : {0.0, 1.0, -2.5, 1e5, 1e200}) {
            engine.setNumber(t, value);
            const Outcome fast = outcomeOf(longer, [&] { return engine.evaluateNumber(compiled); });
            if (zg::ScriptEngine::isNumericForm(compiled))
                check(fast == evaluated(), "the two forms of a formula agree");
        }
    } catch (const zg::ScriptError&) {
        check(!evaluated().error.empty(), "what does not compile does not evaluate");
    } catch (const zg::RunTimeError& error) {
        check(error.number == 501, "only a constant t has no slot");
    }
    check(engine.evalNumber("1+1") == 2, "the engine works afterwards");
    return 0;
}
