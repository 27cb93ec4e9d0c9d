// A sweep evaluates a formula hundreds of times; no evaluation may allocate memory. This program counts
// allocations.

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <string>

#include "tests/graph/script/ScriptSupport.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

std::size_t allocationsOfASweep(zg::ScriptEngine& engine, const char* text) {
    const zg::VariableSlot t = engine.slot("t");
    zg::CompiledExpression expression = engine.compile(text);
    double sum = 0;
    const auto sweep = [&] {
        for (int i = 1; i <= 100; ++i) {
            engine.setNumber(t, i);
            sum += engine.evaluateNumber(expression);
        }
    };
    sweep();
    const std::size_t before = allocations;
    sweep();
    EXPECT_NE(sum, 0);
    return allocations - before;
}

TEST(Allocation, CountsWhatAsksForMemory) {
    const std::size_t before = allocations;
    const std::string longText(100, 'x');
    EXPECT_EQ(allocations, before + 1) << longText;
}

TEST(Allocation, NoneInTheFastForm) {
    zg::ScriptEngine engine;
    EXPECT_EQ(allocationsOfASweep(engine, "exp(cos(t))-2*cos(4*t)+sin(t/12)^5"), 0);
}

TEST(Allocation, NoneForNumbersInTheMachine) {
    zg::ScriptEngine engine;
    engine.AddCode("Function f(x): If x>50 Then f=x*2 Else f=sin(x)\nEnd Function");
    EXPECT_EQ(allocationsOfASweep(engine, "f(t)+round(t,2)*rnd"), 0);
}

}  // namespace
