#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "graph/script/Functions.h"
#include "graph/script/Symbols.h"

namespace zg {

/// Limits of a running script.
constexpr std::size_t deepestCalls = 400;
constexpr std::size_t largestStack = 100000;
constexpr std::uint32_t stepsBetweenClockChecks = 4096;

/// Milliseconds of a clock that only moves forward.
using ScriptClock = std::function<std::int64_t()>;

/// Runs one chunk. It lives for one run, so that nothing is left of a run that failed.
class Machine {
 public:
    /// A time-out below 0 is none.
    Machine(SymbolTable& symbols, RandomState& random, const ScriptClock& clock, std::int32_t timeoutMs);

    /// The value that the chunk leaves, Empty for statements. Raises a ScriptError with its place.
    Value run(const Chunk& chunk);

 private:
    struct Frame {
        const Chunk* chunk = nullptr;
        std::shared_ptr<const Procedure>
            procedure;  ///< kept while it runs, even if it is defined anew meanwhile
        CallSite site;
        std::size_t next = 0;
        std::size_t locals = 0;  ///< where its locals begin
    };

    void execute(const Instruction& instruction);
    void loadGlobal(std::int32_t symbol);
    void call(const CallSite& site);
    void enter(std::shared_ptr<const Procedure> procedure, const CallSite& site);
    void leave();
    void handBack(const Frame& frame);
    void callFunction(const FunctionEntry& entry, std::size_t count);
    void forTest();
    void checkClock();
    void push(Value value);
    Value pop();

    SymbolTable& symbols_;
    RandomState& random_;
    const ScriptClock& clock_;
    std::int32_t timeoutMs_;
    std::int64_t startedAt_ = 0;
    std::uint32_t steps_ = 0;
    std::vector<Value> stack_;
    std::vector<Value> locals_;
    std::vector<Frame> frames_;
};

}  // namespace zg
