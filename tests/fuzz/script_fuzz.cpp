// Any bytes as statements and as a formula: each ends in a value or in an error of the engine, and the engine
// goes on.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "graph/script/ScriptEngine.h"

namespace {

/// What the engine must hold to whatever came before.
void demand(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    // A clock that ticks at each look ends loops without end after a few thousand steps.
    zg::ScriptEngine engine([now = std::int64_t{0}]() mutable { return ++now; });
    engine.AddObject("MathLib");
    engine.Timeout = 20;
    try {
        engine.AddCode(text);
    } catch (const zg::RunTimeError& error) {
        demand(error.number > 0 && !error.description.empty());
    }
    try {
        zg::CompiledExpression compiled = engine.compile(text);
        engine.setNumber(engine.slot("t"), 0.5);
        const double first = engine.evaluateNumber(compiled);
        demand(std::isfinite(first));
    } catch (const zg::RunTimeError& error) {
        demand(error.number > 0 && !error.description.empty());
    }
    try {
        demand(engine.EvalNumber("1+2") == 3);
    } catch (const zg::RunTimeError&) {
        std::abort();
    }
    return 0;
}
