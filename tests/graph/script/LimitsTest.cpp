#include "graph/script/Limits.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/graph/script/ScriptSupport.h"

namespace {

namespace limits = zg::script;

std::string repeated(std::string_view piece, std::size_t count) {
    std::string out;
    out.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i) out += piece;
    return out;
}

TEST(Limits, TextLength) {
    zg::ScriptEngine engine;
    const std::string longest = "0" + repeated("+1", (limits::maxProgramLength - 1) / 2) + " ";
    ASSERT_EQ(longest.size(), limits::maxProgramLength);
    EXPECT_EQ(engine.evalNumber(longest), (limits::maxProgramLength - 1) / 2);
    EXPECT_EQ(scriptError([&] { engine.Eval(longest + " "); }), "line 1, column 1000001: 7 Out of memory");
    EXPECT_EQ(scriptError([&] { engine.AddCode(std::string(1 << 20, ' ')); }),
              "line 1, column 1000001: 7 Out of memory");
    EXPECT_EQ(shown(engine.Eval("1+1")), "Integer 2");
}

TEST(Limits, ALongExpressionMayFailAtItsEnd) {
    const std::string text = repeated("1+", 499'990) + "1/0";
    EXPECT_EQ(evalError(text), "line 1, column 999982: 11 Division by zero");
}

TEST(Limits, Nesting) {
    const auto nested = [](std::size_t depth) { return repeated("(", depth) + "7" + repeated(")", depth); };
    EXPECT_EQ(evaluated(nested(limits::maxNesting - 1)), "Integer 7");
    EXPECT_EQ(evalError(nested(limits::maxNesting)), "line 1, column 501: 28 Out of stack space");
    EXPECT_EQ(evalError(nested(10'000)), "line 1, column 501: 28 Out of stack space");
    EXPECT_EQ(evalError(repeated("(", 10'000)), "line 1, column 501: 28 Out of stack space");
    EXPECT_EQ(evalError(repeated("-", 10'000) + "1"), "line 1, column 501: 28 Out of stack space");
    EXPECT_EQ(evalError(repeated("Not ", 10'000) + "1"), "line 1, column 2001: 28 Out of stack space");
    EXPECT_EQ(evalError("2^" + repeated("-", 10'000) + "1"), "line 1, column 502: 28 Out of stack space");
    EXPECT_EQ(evalError(repeated("sin(", 10'000)), "line 1, column 2001: 28 Out of stack space");
    EXPECT_EQ(codeError(repeated("If 1 Then ", 10'000)), "line 1, column 4994: 28 Out of stack space");
    EXPECT_EQ(codeError(repeated("Do\n", 10'000)), "line 501, column 1: 28 Out of stack space");
    EXPECT_EQ(evaluated(repeated("1+", 10'000) + "1"), "Integer 10001");
}

TEST(Limits, NameLength) {
    EXPECT_EQ(evaluated(std::string(limits::maxNameLength, 'a')), "Empty");
    EXPECT_EQ(evalError("1+" + std::string(limits::maxNameLength + 1, 'a')),
              "line 1, column 3: 1030 Identifier too long");
}

TEST(Limits, Arguments) {
    EXPECT_EQ(evalError("f(1" + repeated(",1", limits::maxArguments - 1) + ")"),
              "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("f(1" + repeated(",1", limits::maxArguments) + ")"),
              "line 1, column 123: 7 Out of memory");
    EXPECT_EQ(codeError("Dim a(0" + repeated(",0", limits::maxArguments) + ")"),
              "line 1, column 127: 7 Out of memory");
    std::string parameters = "p0";
    for (std::size_t i = 1; i <= limits::maxArguments; ++i) parameters += ",p" + std::to_string(i);
    EXPECT_EQ(codeError("Sub s(" + parameters + "): End Sub"), "line 1, column 237: 7 Out of memory");
}

TEST(Limits, VariablesOfAProcedure) {
    const auto procedure = [](std::size_t count) {
        std::string code = "Sub s: Dim v0";
        for (std::size_t i = 1; i < count; ++i) code += ",v" + std::to_string(i);
        return code + ": End Sub: s";
    };
    EXPECT_EQ(codeError(procedure(limits::maxLocals)), "");
    EXPECT_EQ(codeError(procedure(limits::maxLocals + 1)), "line 1, column 10902: 7 Out of memory");
}

TEST(Limits, CallDepth) {
    zg::ScriptEngine engine;
    engine.AddCode("Function f(n): If n>0 Then f=f(n-1)+1 Else f=0\nEnd Function");
    // The expression itself is the outermost call.
    EXPECT_EQ(engine.evalNumber("f(" + std::to_string(limits::maxCallDepth - 2) + ")"),
              limits::maxCallDepth - 2);
    EXPECT_EQ(scriptError([&] { engine.Eval("f(" + std::to_string(limits::maxCallDepth - 1) + ")"); }),
              "line 1, column 30: 28 Out of stack space");
    EXPECT_EQ(engine.evalNumber("f(3)"), 3);
}

TEST(Limits, EndlessRecursionEnds) {
    zg::ScriptEngine engine;
    engine.AddCode("Function f(n): f=f(n+1): End Function: Sub s: q: End Sub: Sub q: s: End Sub");
    EXPECT_EQ(scriptError([&] { engine.Eval("f(1)"); }), "line 1, column 18: 28 Out of stack space");
    EXPECT_EQ(scriptError([&] { engine.AddCode("s"); }).substr(8), "column 47: 28 Out of stack space");
    EXPECT_EQ(shown(engine.Eval("1+1")), "Integer 2");
}

TEST(Limits, StackOfValues) {
    zg::ScriptEngine engine;
    std::string code = "Function f(n): Dim v0";
    for (int i = 1; i < 1900; ++i) code += ",v" + std::to_string(i);
    engine.AddCode(code + ": If n>0 Then f=f(n-1)\nEnd Function");
    EXPECT_EQ(shown(engine.Eval("f(10)")), "Empty");
    EXPECT_EQ(scriptError([&] { engine.Eval("f(20)"); }).substr(8, 2), "co");
    EXPECT_NE(scriptError([&] { engine.Eval("f(20)"); }).find(": 28 Out of stack space"), std::string::npos);
    EXPECT_EQ(shown(engine.Eval("f(10)")), "Empty");
}

TEST(Limits, TextValues) {
    zg::ScriptEngine engine;
    EXPECT_EQ(engine.evalNumber("Len(Space(65536))"), limits::maxTextLength);
    EXPECT_EQ(scriptError([&] { engine.Eval("Space(65537)"); }), "line 1, column 1: 7 Out of memory");
    EXPECT_EQ(scriptError([&] { engine.Eval("String(2000000000, \"x\")"); }),
              "line 1, column 1: 7 Out of memory");
    EXPECT_EQ(scriptError([&] { engine.AddCode("s=\"x\": Do: s=s & s: Loop"); }),
              "line 1, column 16: 7 Out of memory");
    EXPECT_EQ(engine.evalNumber("Len(s)"), limits::maxTextLength);
    EXPECT_EQ(scriptError([&] { engine.Eval("Replace(s, \"x\", \"xy\")"); }),
              "line 1, column 1: 7 Out of memory");
    EXPECT_EQ(scriptError([&] { engine.Eval("\"" + std::string(limits::maxTextLength + 1, 'x') + "\""); }),
              "line 1, column 1: 7 Out of memory");
}

TEST(Limits, TextValuesInAll) {
    zg::ScriptEngine engine;
    EXPECT_EQ(scriptError([&] { engine.AddCode("Dim a(1000): For i=0 To 1000: a(i)=Space(60000): Next"); }),
              "line 1, column 36: 7 Out of memory");
    EXPECT_EQ(engine.evalNumber("i"), limits::maxTextTotal / 60000);
    engine.AddCode("For i=0 To 1000: a(i)=0: Next: b=Space(60000)");
    EXPECT_EQ(engine.evalNumber("Len(b)"), 60000);
}

TEST(Limits, ArrayElements) {
    EXPECT_EQ(codeError("Dim a(99999)"), "");
    EXPECT_EQ(codeError("Dim a(100000)"), "line 1, column 7: 7 Out of memory");
    EXPECT_EQ(codeError("Dim a(2000000000, 2000000000)"), "line 1, column 7: 7 Out of memory");
    EXPECT_EQ(codeError("Dim a(60000), b(60000)"), "line 1, column 15: 7 Out of memory");
    EXPECT_EQ(codeError("Sub s(n): Dim a(9999): If n>0 Then s n-1\nEnd Sub: s 8: s 8"), "");
    EXPECT_EQ(codeError("Sub s(n): Dim a(9999): If n>0 Then s n-1\nEnd Sub: s 10"),
              "line 1, column 15: 7 Out of memory");
}

/// A clock that advances by this amount whenever it is read.
class Timeout : public testing::Test {
 protected:
    std::int64_t looks = 0;
    zg::ScriptEngine engine{[this] { return 100 * looks++; }};
};

TEST_F(Timeout, EndsAnEndlessLoop) {
    EXPECT_EQ(engine.Timeout(), 10'000);
    EXPECT_EQ(scriptError([&] { engine.AddCode("a=1\nDo\nLoop"); }).substr(0, 6), "line 2");
    EXPECT_EQ(looks, 101);
    EXPECT_EQ(shown(engine.Eval("a+1")), "Integer 2");
}

TEST_F(Timeout, HasAClearError) {
    engine.Timeout(500);
    EXPECT_EQ(scriptError([&] { engine.AddCode("Do: Loop"); }),
              "line 1, column 1: 32811 The script ran out of time");
    EXPECT_EQ(looks, 6);
    EXPECT_EQ(scriptError([&] { engine.AddCode("For i=1 To 2 Step 0: Next"); }).substr(16),
              ": 32811 The script ran out of time");
    EXPECT_EQ(scriptError([&] { engine.AddCode("Function f: Do: Loop: End Function"); }), "");
    EXPECT_EQ(scriptError([&] { engine.Eval("f"); }), "line 1, column 13: 32811 The script ran out of time");
}

TEST_F(Timeout, StartsAnewWithEveryCall) {
    engine.Timeout(1000);
    for (int i = 0; i < 30; ++i) engine.AddCode("For i=1 To 2000: Next");
    EXPECT_EQ(engine.evalNumber("i"), 2001);
}

TEST_F(Timeout, LooksAtTheClockNowAndThenOnly) {
    engine.AddCode("a=1");
    EXPECT_EQ(looks, 1);
    engine.AddCode("For i=1 To 1000: Next");
    EXPECT_GT(looks, 2);
    EXPECT_LT(looks, 10);
}

TEST_F(Timeout, CountsWorkOnLongTexts) {
    engine.AddCode("s=Space(60000)");
    looks = 0;
    engine.AddCode("For i=1 To 20: n=InStr(s, s & \"x\"): Next");
    EXPECT_GT(looks, 15);
}

TEST_F(Timeout, MinusOneIsNoLimit) {
    engine.Timeout(-1);
    EXPECT_EQ(engine.Timeout(), -1);
    engine.AddCode("For i=1 To 100000: Next");
    EXPECT_EQ(engine.evalNumber("i"), 100001);
    EXPECT_EQ(looks, 0);
}

TEST_F(Timeout, WhatIsCalledWhileAScriptRunsMayEndIt) {
    int calls = 0;
    engine.whileRunning([&calls] {
        if (++calls == 3) throw calls;
    });
    engine.Timeout(-1);
    EXPECT_THROW(engine.AddCode("a=1: Do: Loop"), int);
    EXPECT_EQ(shown(engine.Eval("a+1")), "Integer 2") << "the engine is ready for the next call";
    engine.whileRunning([] { throw zg::RunTimeError(7, "no more"); });
    EXPECT_EQ(scriptError([&] { engine.AddCode("Do: Loop"); }), "line 1, column 1: 7 no more");
    engine.whileRunning({});
    engine.AddCode("For i=1 To 100000: Next");
}

TEST_F(Timeout, DoesNotCountWhatIsCalledWhileAScriptRuns) {
    int calls = 0;
    engine.whileRunning([&] {
        ++calls;
        looks += 500;
    });
    engine.AddCode("For i=1 To 20000: Next");
    EXPECT_GT(calls, 5);
}

TEST_F(Timeout, RefusesLowerValues) {
    EXPECT_EQ(scriptError([&] {
                  try {
                      engine.Timeout(-2);
                  } catch (const zg::RunTimeError& error) {
                      throw zg::ScriptError(error.number, error.description, "", 0);
                  }
              }),
              "line 1, column 1: 380 Invalid property value");
    EXPECT_EQ(engine.Timeout(), 10'000);
}

}  // namespace
