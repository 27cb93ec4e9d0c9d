#include <gtest/gtest.h>

#include "tests/graph/script/ScriptSupport.h"

namespace {

/// Code and the value of `r` after it.
struct Run {
    const char* code;
    const char* result;
};

void PrintTo(const Run& row, std::ostream* out) { *out << row.code; }

class Statements : public testing::TestWithParam<Run> {};

TEST_P(Statements, LeaveTheResult) { EXPECT_EQ(evaluated("r", GetParam().code), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(
    Assignment, Statements,
    testing::Values(Run{"r=2:b=3", "Integer 2"}, Run{"a=2:r=a*3:", "Integer 6"}, Run{"::r=1::", "Integer 1"},
                    Run{"Let r = 5", "Integer 5"}, Run{"a=1\nr=a+1\r\nb=2\rr=r+b", "Integer 4"},
                    Run{"r = 1 = 1", "Boolean True"}, Run{"R=7", "Integer 7"},
                    Run{"r=1 ' comment : r=2", "Integer 1"}, Run{"Rem r=2\nr=3: rem r=4", "Integer 3"},
                    Run{"r = 1 + _\n    2", "Integer 3"}, Run{"step=2: error=3: r=step*error", "Integer 6"},
                    Run{"Set m = MathLib: r = m.Diameter(2)", "Double 4"}, Run{"", "Empty"},
                    Run{"r=1.74532925199433E-02", "Double 1.74532925199433E-02"}));

INSTANTIATE_TEST_SUITE_P(
    Declarations, Statements,
    testing::Values(Run{"Dim r, b: r=1", "Integer 1"}, Run{"Const k=3, m=-2: r=k*m", "Integer -6"},
                    Run{"Const k=\"a\": r=k & k", "String aa"}, Run{"Const k=True: r=k", "Boolean True"},
                    Run{"Const k=+2, n=Null, e=Empty: r=IsNull(n) And IsEmpty(e)", "Boolean True"},
                    Run{"r=k: Const k=4", "Integer 4"}, Run{"Public r: r=2", "Integer 2"},
                    Run{"Private Const k=2: r=k", "Integer 2"},
                    Run{"Option Explicit: Dim r: r=2", "Integer 2"},
                    Run{"Option Explicit\nr=2\nDim r", "Integer 2"},
                    Run{"Dim a(3): a(0)=1: a(3)=5: r=a(0)+a(3)+a(1)", "Integer 6"},
                    Run{"Dim a(1,2): a(1,2)=7: a(0,2)=1: r=a(1,2)*10+a(0,2)", "Integer 71"},
                    Run{"Dim a(2): a(1.5)=3: r=a(2)", "Integer 3"},
                    Run{"Dim abs: abs=3: r=abs", "Integer 3"}));

INSTANTIATE_TEST_SUITE_P(
    If, Statements,
    testing::Values(
        Run{"If 1 Then r=1", "Integer 1"}, Run{"If 0 Then r=1", "Empty"},
        Run{"If 0 Then r=1 Else r=2", "Integer 2"}, Run{"If 1 Then r=1: r=r+1 Else r=9: r=8", "Integer 2"},
        Run{"If 0 Then r=1: r=r+1 Else r=9: r=8", "Integer 8"},
        Run{"If 0 Then r=1\nIf 1 Then r=2", "Integer 2"},
        Run{"If 1 Then If 0 Then r=1 Else r=2", "Integer 2"},
        Run{"If 0 Then r=1 ElseIf 1 Then r=2 Else r=3", "Integer 2"},
        Run{"If 0 Then r=1 Else If 0 Then r=2 Else r=3", "Integer 3"},
        Run{"If 1 Then r=1 End If", "Integer 1"}, Run{"If 1 Then\nr=1\nEnd If\nr=r+1", "Integer 2"},
        Run{"If 0 Then\nr=1\nElse\nr=2\nEnd If", "Integer 2"},
        Run{"If 0 Then\nr=1\nElseIf 0 Then\nr=2\nElseIf 5 Then\nr=3\nElse\nr=4\nEnd If", "Integer 3"},
        Run{"If 1 Then: r=2: End If", "Integer 2"}, Run{"If 0 Then: r=2: Else: r=3: End If", "Integer 3"},
        Run{"If Null Then r=1 Else r=2", "Integer 2"}, Run{"If \"true\" Then r=1", "Integer 1"},
        Run{"If 0.1 Then r=1", "Integer 1"}, Run{"If Empty Then r=1 Else r=0", "Integer 0"},
        Run{"If 1 Then ' nothing\nr=4 ' more\nEnd If", "Integer 4"}));

INSTANTIATE_TEST_SUITE_P(
    Select, Statements,
    testing::Values(
        Run{"Select Case 2\nCase 1\nr=1\nCase 2, 3\nr=2\nCase Else\nr=9\nEnd Select", "Integer 2"},
        Run{"Select Case 3: Case 1: r=1: Case 2, 3: r=2: End Select", "Integer 2"},
        Run{"Select Case 7: Case 1: r=1: Case Else: r=9: End Select", "Integer 9"},
        Run{"r=5: Select Case 7: Case 1: r=1: End Select", "Integer 5"},
        Run{"Select Case \"b\": Case \"a\": r=1: Case \"b\": r=2: Case \"b\": r=3: End Select", "Integer 2"},
        Run{"r=0: Select Case r: End Select", "Integer 0"},
        Run{"Select Case 1: Case 1: Select Case 2: Case 2: r=12: End Select: End Select", "Integer 12"}));

INSTANTIATE_TEST_SUITE_P(
    For, Statements,
    testing::Values(Run{"r=0: For i=1 To 4: r=r+i: Next", "Integer 10"},
                    Run{"r=0: For i=4 To 1 Step -1: r=r*10+i: Next", "Integer 4321"},
                    Run{"r=0: For i=2 To 1: r=1: Next", "Integer 0"},
                    Run{"For i=1 To 3: Next: r=i", "Integer 4"},
                    Run{"r=0: For i=0 To 1 Step 0.25: r=r+1: Next", "Integer 5"},
                    Run{"r=0: n=3: For i=1 To n: n=10: r=r+1: Next", "Integer 3"},
                    Run{"r=0: For i=1 To 9: If i=4 Then Exit For\nr=r+i: Next", "Integer 6"},
                    Run{"r=0: For i=1 To 3: For j=1 To 3: If j=2 Then Exit For\nr=r+1: Next: Next",
                        "Integer 3"},
                    Run{"r=0: For i=1 To 3: If i>1 Then r=r+i: Next", "Integer 5"},
                    Run{"r=0: For i=\"1\" To \"3\": r=r+i: Next", "Double 6"},
                    Run{"r=0: For i=1 To 5: i=i+1: r=r+1: Next", "Integer 3"},
                    Run{"For i=32767 To 32768: Next: r=i", "Long 32769"},
                    Run{"If 1 Then For i=1 To 3: r=r+i: Next", "Integer 6"}));

INSTANTIATE_TEST_SUITE_P(Loops, Statements,
                         testing::Values(Run{"r=0: Do While r<3: r=r+1: Loop", "Integer 3"},
                                         Run{"r=0: Do Until r>=3: r=r+1: Loop", "Integer 3"},
                                         Run{"r=0: Do: r=r+1: Loop While r<3", "Integer 3"},
                                         Run{"r=0: Do: r=r+1: Loop Until r>2", "Integer 3"},
                                         Run{"r=5: Do While 0: r=1: Loop", "Integer 5"},
                                         Run{"r=0: Do: r=r+1: Loop While 0", "Integer 1"},
                                         Run{"r=0: Do: r=r+1: If r=4 Then Exit Do\nLoop", "Integer 4"},
                                         Run{"r=0: While r<3: r=r+1: Wend", "Integer 3"},
                                         Run{"r=0: Do: While 1: r=r+1: Exit Do: Wend: Loop: r=r+10",
                                             "Integer 11"},
                                         Run{"r=0: Do: For i=1 To 9: Exit Do: Next: Loop", "Integer 0"},
                                         Run{"r=0: For i=1 To 3: Do: Exit For: Loop: Next: r=i", "Integer 1"},
                                         Run{"r=0: Do While Null: r=1: Loop", "Integer 0"}));

INSTANTIATE_TEST_SUITE_P(
    Procedures, Statements,
    testing::Values(
        Run{"Function f(x): f=x*2: End Function: r=f(4)", "Integer 8"},
        Run{"r=f(4)\nFunction f(x)\nf=x*2\nEnd Function", "Integer 8"},
        Run{"Function f: f=3: End Function: r=f+f()", "Integer 6"},
        Run{"Function f(): End Function: r=f", "Empty"},
        Run{"Function f(n): If n<2 Then f=1 Else f=n*f(n-1)\nEnd Function: r=f(5)", "Integer 120"},
        Run{"Sub s: r=3: End Sub: r=0: s", "Integer 3"},
        Run{"Sub s(a, b): r=a-b: End Sub: r=0: s 5, 3", "Integer 2"},
        Run{"Sub s(a, b): r=a-b: End Sub: r=0: Call s(5, 3)", "Integer 2"},
        Run{"Sub s: r=3: End Sub: r=0: Call s", "Integer 3"},
        Run{"Sub s(): r=3: End Sub: r=0: s()", "Integer 3"},
        Run{"Sub s(a): r=a: End Sub: r=0: s (1)+2", "Integer 3"},
        Run{"Sub s(a, b): r=a-b: End Sub: r=0: s (5), (3)", "Integer 2"},
        Run{"Sub s(a): a=9: End Sub: r=1: s r", "Integer 9"},
        Run{"Sub s(a): a=9: End Sub: r=1: s (r)", "Integer 1"},
        Run{"Sub s(ByVal a): a=9: End Sub: r=1: s r", "Integer 1"},
        Run{"Sub s(ByRef a): a=9: End Sub: r=1: Call s(r)", "Integer 9"},
        Run{"Sub s(a): a=9: End Sub: r=1: Call s((r))", "Integer 1"},
        Run{"Sub s(a): a=9: End Sub: r=1: s r+0", "Integer 1"},
        Run{"Sub s(a): t2 a: End Sub: Sub t2(b): b=7: End Sub: r=1: s r", "Integer 7"},
        Run{"Function f(a): a=a+1: f=a: End Function: x=1: r=f(x)*10+x", "Integer 22"},
        Run{"Sub s(a): a=9: End Sub: Dim v(2): s v(1): r=v(1)", "Integer 9"},
        Run{"Sub fill(v): For i=0 To 2: v(i)=i*i: Next: End Sub: Dim w(2): fill w: r=w(2)", "Integer 4"},
        Run{"Sub s: Exit Sub: r=1: End Sub: r=0: s", "Integer 0"},
        Run{"Function f: f=1: Exit Function: f=2: End Function: r=f", "Integer 1"},
        Run{"Sub s: Dim x: x=5: End Sub: x=1: s: r=x", "Integer 1"},
        Run{"Sub s: x=5: End Sub: x=1: s: r=x", "Integer 5"}, Run{"Sub s: x=5: End Sub: s: r=x", "Empty"},
        Run{"Sub s: Const x=5: r=x: End Sub: r=0: s", "Integer 5"},
        Run{"Sub s(a): a=9: End Sub: Sub q: Const k=1: s k: r=k: End Sub: r=0: q", "Integer 1"},
        Run{"Const k=1: Sub s(a): a=9: End Sub: s k: r=k", "Integer 1"},
        Run{"Function f: Dim a(2): a(1)=4: f=a(1)+a(2): End Function: r=f+f", "Integer 8"},
        Run{"Function sin(x): sin=x+100: End Function: r=sin(1)", "Integer 101"},
        Run{"Private Function f: f=2: End Function: Public Sub s: r=f: End Sub: r=0: s", "Integer 2"},
        Run{"Sub s(a, b, c): c=a & b: End Sub: r=\"\": s \"x\", 1, r", "String x1"},
        Run{"Sub s: MathLib.Radius 3, 4: MathLib.Pi: Abs -1: r=1: End Sub: r=0: s", "Integer 1"},
        Run{"Sub swap(a, b): h=a: a=b: b=h: End Sub: x=1: y=2: swap x, y: r=x*10+y", "Integer 21"}));

TEST(Statements, KeepVariablesBetweenCalls) {
    zg::ScriptEngine engine;
    engine.AddCode("a=2:b=3");
    engine.AddCode("c=a*b:");
    EXPECT_EQ(shown(engine.Eval("c+a")), "Integer 8");
    engine.AddCode("a=10");
    EXPECT_EQ(shown(engine.Eval("c+a")), "Integer 16");
}

TEST(Statements, KeepProceduresBetweenCalls) {
    zg::ScriptEngine engine;
    engine.AddCode("Function f(x): f = x*k + t: End Function");
    engine.AddCode("k=3");
    engine.AddCode("t=1.74532925199433E-02");
    EXPECT_EQ(shown(engine.Eval("f(2)")), "Double 6.01745329251994");
    engine.AddCode("Function f(x): f = -x: End Function");
    EXPECT_EQ(shown(engine.Eval("f(2)")), "Integer -2");
}

/// A coefficient is added again for every drawing.
TEST(Statements, MayBeAddedAgain) {
    zg::ScriptEngine engine;
    const char* const code =
        "Option Explicit: Const k=2: Dim a, v(3): Function f(x): f=x*k: End Function: a=f(3)";
    engine.AddCode(code);
    engine.AddCode(code);
    EXPECT_EQ(shown(engine.Eval("a")), "Integer 6");
}

TEST(Statements, OfAFaultyTextHaveNoEffect) {
    zg::ScriptEngine engine;
    engine.AddCode("a=1");
    EXPECT_EQ(scriptError([&] { engine.AddCode("a=2: b=("); }), "line 1, column 9: 1002 Syntax error");
    EXPECT_EQ(shown(engine.Eval("a")), "Integer 1");
}

TEST(Statements, BeforeAFailingOneHaveTheirEffect) {
    zg::ScriptEngine engine;
    EXPECT_EQ(scriptError([&] { engine.AddCode("a=2: b=1/0: c=3"); }),
              "line 1, column 9: 11 Division by zero");
    EXPECT_EQ(shown(engine.Eval("a")), "Integer 2");
    EXPECT_EQ(shown(engine.Eval("c")), "Empty");
}

TEST(Statements, FailInsideAProcedureAtItsOwnPlace) {
    zg::ScriptEngine engine;
    engine.AddCode("Function f(x)\n  f = 1/x\nEnd Function");
    EXPECT_EQ(scriptError([&] { engine.Eval("1 + f(0)"); }), "line 2, column 8: 11 Division by zero");
    EXPECT_EQ(shown(engine.Eval("f(4)")), "Double 0.25");
}

TEST(Statements, OptionExplicitHoldsForItsText) {
    zg::ScriptEngine engine;
    EXPECT_EQ(scriptError([&] { engine.AddCode("Option Explicit: x=1"); }),
              "line 1, column 18: 500 Variable is undefined");
    EXPECT_EQ(scriptError([&] { engine.AddCode("Option Explicit: Dim y: y=x"); }),
              "line 1, column 27: 500 Variable is undefined");
    EXPECT_EQ(scriptError([&] { engine.AddCode("Option Explicit: x(1)=2"); }),
              "line 1, column 18: 500 Variable is undefined");
    EXPECT_EQ(scriptError([&] { engine.AddCode("Option Explicit: For i=1 To 2: Next"); }),
              "line 1, column 22: 500 Variable is undefined");
    EXPECT_EQ(scriptError([&] { engine.AddCode("Option Explicit: Sub s: q=1: End Sub: s"); }),
              "line 1, column 25: 500 Variable is undefined");
    engine.AddCode("z=1");
    engine.AddCode("Option Explicit: z=2");
    EXPECT_EQ(shown(engine.Eval("z + unknown")), "Integer 2");
}

}  // namespace
