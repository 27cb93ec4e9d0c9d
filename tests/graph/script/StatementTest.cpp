#include "tests/graph/script/Engine.h"

namespace {

struct Script {
    const char* code;
    const char* expression;
    const char* result;
};

class Statement : public ::testing::TestWithParam<Script> {};

TEST_P(Statement, LeavesItsResult) {
    Engine engine;
    ASSERT_EQ(engine.errorOfCode(GetParam().code), "") << GetParam().code;
    EXPECT_EQ(engine.eval(GetParam().expression), GetParam().result) << GetParam().code;
}

INSTANTIATE_TEST_SUITE_P(
    Assignments, Statement,
    ::testing::Values(Script{"a=2:b=3", "a*b", "Integer 6"}, Script{"a=2:b=3:", "a+b", "Integer 5"},
                      Script{"", "1", "Integer 1"}, Script{"   ", "1", "Integer 1"},
                      Script{":::", "1", "Integer 1"}, Script{"Let a = 4", "a", "Integer 4"},
                      Script{"Dim a, b\na = 1", "a", "Integer 1"},
                      Script{"Const k = -2, m = \"x\"", "k & m", "String -2x"},
                      Script{"a = 1 ' a comment\nRem another\nb = 2", "a+b", "Integer 3"},
                      Script{"a = 1 + _\r\n  2", "a", "Integer 3"},
                      Script{"a = \"x\" : a = a & a", "a", "String xx"}));

INSTANTIATE_TEST_SUITE_P(
    Branches, Statement,
    ::testing::Values(
        Script{"If 1 Then a = 1 Else a = 2", "a", "Integer 1"},
        Script{"If 0 Then a = 1 Else a = 2", "a", "Integer 2"},
        Script{"If 0 Then a = 1 : b = 1", "b", "Empty"},
        Script{"If 1 Then If 0 Then a=1 Else a=2", "a", "Integer 2"},
        Script{"If x = 1 Then\na=1\nElseIf x = 0 Then\na=2\nElse\na=3\nEnd If", "a", "Integer 2"},
        Script{"If False Then\na=1\nElse\na=3\nEnd If", "a", "Integer 3"},
        Script{"If Null Then a = 1 Else a = 2", "a", "Integer 2"},
        Script{"Select Case 3\nCase 1, 2\na=1\nCase 3, 4\na=2\nCase Else\na=9\nEnd Select", "a", "Integer 2"},
        Script{"Select Case \"z\"\nCase \"a\"\na=1\nCase Else\na=9\nEnd Select", "a", "Integer 9"}));

INSTANTIATE_TEST_SUITE_P(
    Loops, Statement,
    ::testing::Values(Script{"For i = 1 To 4: s = s + i: Next", "s", "Integer 10"},
                      Script{"For i = 1 To 4: Next", "i", "Integer 5"},
                      Script{"For i = 5 To 1 Step -2: s = s & i: Next", "s", "String 531"},
                      Script{"For i = 1 To 0: s = 1: Next", "s", "Empty"},
                      Script{"For i = 1 To 9: If i = 3 Then Exit For\ns = s + 1: Next", "s", "Integer 2"},
                      Script{"Do While i < 3: i = i + 1: Loop", "i", "Integer 3"},
                      Script{"Do Until i = 3: i = i + 1: Loop", "i", "Integer 3"},
                      Script{"Do: i = i + 1: Loop While i < 3", "i", "Integer 3"},
                      Script{"Do: i = i + 1: Loop Until i", "i", "Integer 1"},
                      Script{"Do: i = i + 1: If i > 4 Then Exit Do\nLoop", "i", "Integer 5"},
                      Script{"While i < 7: i = i + 2: Wend", "i", "Integer 8"},
                      Script{"For i = 0 To 1 Step 0.25: n = n + 1: Next", "n", "Integer 5"},
                      Script{"For i = 1 To 3: For j = 1 To 3: If j = 2 Then Exit For\nn = n + 1: Next: Next",
                             "n", "Integer 3"}));

INSTANTIATE_TEST_SUITE_P(
    Procedures, Statement,
    ::testing::Values(
        Script{"Function f(x): f = x * 2: End Function", "f(4)", "Integer 8"},
        Script{"Function f: f = 7: End Function", "f + f()", "Integer 14"},
        Script{"Function fac(n)\nIf n <= 1 Then\nfac = 1\nElse\nfac = n * fac(n - 1)\nEnd If\nEnd Function",
               "fac(6)", "Integer 720"},
        Script{"Sub s(x): x = 5: End Sub\na = 1: s a", "a", "Integer 5"},
        Script{"Sub s(ByVal x): x = 5: End Sub\na = 1: s a", "a", "Integer 1"},
        Script{"Sub s(x, y): x = y: End Sub\nCall s(a, 3)", "a", "Integer 3"},
        Script{"Function f(x): f = 1: If x Then Exit Function\nf = 2: End Function", "f(1) & f(0)",
               "String 12"},
        Script{"Sub s: b = 9: End Sub\ns", "b", "Empty"},
        Script{"b = 1: Sub s: b = 9: End Sub\ns", "b", "Integer 9"},
        Script{"Sub s(x): x = x + 1: End Sub\nFunction g: Dim v: v = 1: s v: g = v: End Function", "g",
               "Integer 2"},
        Script{"a = f(2)\nFunction f(x): f = x + k: End Function", "a", "Integer 2"}));

TEST(State, LivesBetweenCalls) {
    Engine engine;
    engine.script.AddCode("a = 2");
    engine.script.AddCode("Function f(x): f = a * x * t: End Function");
    engine.script.AddCode("t = 1.5");
    EXPECT_EQ(engine.script.EvalNumber("f(2)"), 6);
    engine.script.AddCode("a = 4");
    EXPECT_EQ(engine.script.EvalNumber("f(2)"), 12);
    engine.script.AddCode("Function f(x): f = 1: End Function");
    EXPECT_EQ(engine.script.EvalNumber("f(2)"), 1) << "a procedure can be defined anew";
}

TEST(State, ACodeThatDoesNotCompileLeavesNothing) {
    Engine engine;
    EXPECT_EQ(engine.errorOfCode("Const k = 1\nx ="), "1002 2:4");
    EXPECT_EQ(engine.errorOfCode("k = 5"), "");
    EXPECT_EQ(engine.eval("k"), "Integer 5");
}

TEST(State, AConstantMayComeAgainWithALaterText) {
    Engine engine;
    EXPECT_EQ(engine.errorOfCode("Const k = 1:"), "");
    EXPECT_EQ(engine.errorOfCode("Const k = 2:"), "");
    EXPECT_EQ(engine.eval("k"), "Integer 2");
    EXPECT_EQ(engine.errorOfCode("k = 5"), "501 1:1") << "it is a constant all the same";
    EXPECT_EQ(engine.errorOfCode("Const k = 3: Const k = 4"), "1041 1:20");
}

TEST(OptionExplicit, AsksForDeclarations) {
    Engine engine;
    EXPECT_EQ(engine.errorOfCode("Option Explicit\nDim a\na = 1"), "");
    EXPECT_EQ(engine.errorOfCode("b = 1"), "500 1:1");
}

}  // namespace
