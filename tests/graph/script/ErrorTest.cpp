#include "base/RunTimeError.h"
#include "tests/graph/script/Engine.h"

namespace {

class EvalError : public ::testing::TestWithParam<Row> {};

TEST_P(EvalError, IsRaisedWithItsPlaceAndTheEngineGoesOn) {
    Engine engine;
    EXPECT_EQ(engine.errorOfEval(GetParam().source), GetParam().result) << GetParam().source;
    EXPECT_EQ(engine.eval("1+1"), "Integer 2");
}

INSTANTIATE_TEST_SUITE_P(
    Running, EvalError,
    ::testing::Values(Row{"1/0", "11 1:2"}, Row{"0/0", "6 1:2"}, Row{"4\\0", "11 1:2"},
                      Row{"4 Mod 0", "11 1:3"}, Row{"Log(0)", "5 1:1"}, Row{"Sqr(-1)", "5 1:1"},
                      Row{"1 + Log(-1)", "5 1:5"}, Row{"Exp(1000)", "6 1:1"}, Row{"1E308*10", "6 1:6"},
                      Row{"10^400", "6 1:3"}, Row{"0^-1", "5 1:2"}, Row{"(-8)^0.5", "5 1:5"},
                      Row{"\"a\"*2", "13 1:4"}, Row{"-\"a\"", "13 1:1"}, Row{"unknown(1)", "13 1:1"},
                      Row{"CInt(40000)", "6 1:1"}, Row{"CByte(256)", "6 1:1"}, Row{"CLng(3E9)", "6 1:1"},
                      Row{"3E9\\2", "6 1:4"}, Row{"Chr(256)", "5 1:1"}, Row{"Asc(\"\")", "5 1:1"},
                      Row{"Left(\"a\", -1)", "5 1:1"}, Row{"MathLib.pow(-2, 2)", "5 1:9"},
                      Row{"CStr(Null)", "94 1:1"}, Row{"\"x\" And 1", "13 1:5"}));

INSTANTIATE_TEST_SUITE_P(
    Compiling, EvalError,
    ::testing::Values(Row{"", "1002 1:1"}, Row{"sin(t", "1006 1:6"}, Row{"(1+2", "1006 1:5"},
                      Row{"1+2)", "1025 1:4"}, Row{"1+", "1002 1:3"}, Row{"*2", "1002 1:1"},
                      Row{"2 3", "1025 1:3"}, Row{"2t", "1025 1:2"}, Row{"\"abc", "1033 1:1"},
                      Row{"1e", "1031 1:1"}, Row{"&HZZ", "1031 1:1"}, Row{"4 $ 2", "1032 1:3"},
                      Row{"s\xC3\xBCn(1)", "1032 1:2"}, Row{"\xE5\x8C\x97", "1032 1:1"},
                      Row{"Sin()", "450 1:1"}, Row{"Sin(1,2)", "450 1:1"}, Row{"Sin", "450 1:1"},
                      Row{"MathLib.Pow(1)", "450 1:9"}, Row{"MathLib.Nothing(1)", "438 1:9"},
                      Row{"Other.Pi", "424 1:1"}, Row{"MathLib.", "1010 1:9"}, Row{"1 + If", "1002 1:5"},
                      Row{"1e400", "6 1:1"}));

class CodeError : public ::testing::TestWithParam<Row> {};

TEST_P(CodeError, IsRaisedWithItsPlaceAndTheEngineGoesOn) {
    Engine engine;
    EXPECT_EQ(engine.errorOfCode(GetParam().source), GetParam().result) << GetParam().source;
    EXPECT_EQ(engine.errorOfCode("after = 1"), "");
    EXPECT_EQ(engine.eval("after"), "Integer 1");
}

INSTANTIATE_TEST_SUITE_P(
    Statements, CodeError,
    ::testing::Values(Row{"a = 1 b = 2", "1025 1:7"}, Row{"5 = a", "1024 1:1"}, Row{"Let a", "1011 1:6"},
                      Row{"Dim 5", "1010 1:5"}, Row{"Dim a(5)", "1025 1:6"},
                      Row{"Const k = 1: k = 2", "501 1:14"}, Row{"Const k = 1: Const k = 2", "1041 1:20"},
                      Row{"Const k = a", "1045 1:7"}, Row{"sin = 3", "501 1:1"},
                      Row{"MathLib = 3", "501 1:1"}, Row{"If 1 a = 1", "1017 1:6"},
                      Row{"If 1 Then\na = 1", "1014 2:6"}, Row{"If 1 Then\na = 1\nEnd", "1012 3:4"},
                      Row{"For i = 1", "1013 1:10"}, Row{"For i = 1 To 2\na = 1", "1020 2:6"},
                      Row{"Do\na = 1", "1019 2:6"}, Row{"While 1\na=1", "1018 2:4"},
                      Row{"Select 1", "1021 1:8"}, Row{"Select Case 1\nCase 1\nEnd If", "1022 3:5"},
                      Row{"Sub s\na=1", "1014 2:4"}, Row{"Sub s\nEnd Function", "1016 2:5"},
                      Row{"Function f\nEnd Sub", "1015 2:5"}, Row{"Exit For", "1039 1:1"},
                      Row{"Exit Sub", "1039 1:1"}, Row{"Loop", "1024 1:1"}, Row{"a = \"x", "1033 1:5"},
                      Row{"Function f(x): End Function\nf = 1 +", "1002 2:8"},
                      Row{"Sub s: End Sub\na = s(1)", "13 2:5"}, Row{"Sub s(x): End Sub\ns", "450 2:1"},
                      Row{"a = 1\nb = 1/0", "11 2:6"}, Row{"If 1 Then Sub s: End Sub", "1002 1:11"}));

TEST(ScriptErrors, CarryNumberDescriptionPlaceAndSource) {
    Engine engine;
    try {
        engine.script.AddCode("a = 1\nb = (2");
        FAIL();
    } catch (const zg::ScriptError& error) {
        EXPECT_EQ(error.number, 1006);
        EXPECT_EQ(error.description, "Expected ')'");
        EXPECT_EQ(error.position, (zg::ScriptPosition{2, 7}));
        EXPECT_EQ(error.text, "b = (2");
    }
}

TEST(ScriptErrors, StatementsBeforeAFailedOneHaveRun) {
    Engine engine;
    EXPECT_EQ(engine.errorOfCode("a = 1: b = 1/0: a = 2"), "11 1:13");
    EXPECT_EQ(engine.eval("a"), "Integer 1");
}

TEST(Language, IsOne) {
    Engine engine;
    engine.script.Language("VBScript");
    EXPECT_THROW(engine.script.Language("JScript"), zg::RunTimeError);
    EXPECT_EQ(engine.script.Language(), "VBScript");
}

}  // namespace
