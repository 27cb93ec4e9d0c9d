#include <gtest/gtest.h>

#include "tests/graph/script/ScriptSupport.h"

namespace {

class Functions : public testing::TestWithParam<Evaluation> {};

TEST_P(Functions, GiveValueAndWidth) { EXPECT_EQ(evaluated(GetParam().expression), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(
    Numeric, Functions,
    testing::Values(Evaluation{"Abs(-5)", "Integer 5"}, Evaluation{"Abs(-2.5)", "Double 2.5"},
                    Evaluation{"Abs(CInt(-32768))", "Long 32768"}, Evaluation{"Abs(\"-3\")", "Double 3"},
                    Evaluation{"Abs(True)", "Integer 1"}, Evaluation{"Abs(Null)", "Null"},
                    Evaluation{"Abs(Empty)", "Integer 0"}, Evaluation{"4*Atn(1)", "Double 3.14159265358979"},
                    Evaluation{"Cos(0)", "Double 1"}, Evaluation{"Sin(0)", "Double 0"},
                    Evaluation{"Tan(0)", "Double 0"}, Evaluation{"Exp(0)", "Double 1"},
                    Evaluation{"Exp(-1000)", "Double 0"}, Evaluation{"Log(1)", "Double 0"},
                    Evaluation{"Sqr(16)", "Double 4"}, Evaluation{"Sqr(0)", "Double 0"},
                    Evaluation{"Int(2.7)", "Double 2"}, Evaluation{"Int(-2.2)", "Double -3"},
                    Evaluation{"Fix(-2.7)", "Double -2"}, Evaluation{"Fix(2.7)", "Double 2"},
                    Evaluation{"Int(7)", "Integer 7"}, Evaluation{"Fix(100000)", "Long 100000"},
                    Evaluation{"Int(CSng(1.5))", "Single 1"}, Evaluation{"Int(Null)", "Null"},
                    Evaluation{"Sgn(-0.1)", "Integer -1"}, Evaluation{"Sgn(0)", "Integer 0"},
                    Evaluation{"Sgn(9)", "Integer 1"}, Evaluation{"Round(2.5)", "Double 2"},
                    Evaluation{"Round(3.5)", "Double 4"}, Evaluation{"Round(-2.5)", "Double -2"},
                    Evaluation{"Round(2.345, 1)", "Double 2.3"}, Evaluation{"Round(0.125, 2)", "Double 0.12"},
                    Evaluation{"Round(7)", "Integer 7"}, Evaluation{"Round(7, 2)", "Integer 7"},
                    Evaluation{"Round(CSng(2.5), 0)", "Single 2"}, Evaluation{"Round(Null, 1)", "Null"},
                    Evaluation{"sin(\"0\")", "Double 0"}));

INSTANTIATE_TEST_SUITE_P(
    Conversion, Functions,
    testing::Values(
        Evaluation{"CInt(2.5)", "Integer 2"}, Evaluation{"CInt(3.5)", "Integer 4"},
        Evaluation{"CInt(\"-7.5\")", "Integer -8"}, Evaluation{"CInt(True)", "Integer -1"},
        Evaluation{"CLng(0.5)", "Long 0"}, Evaluation{"CLng(1.5)", "Long 2"},
        Evaluation{"CDbl(3)", "Double 3"}, Evaluation{"CDbl(\"1.5E2\")", "Double 150"},
        Evaluation{"CDbl(\" 1,000 \")", "Double 1000"}, Evaluation{"CSng(0.1)", "Single 0.1"},
        Evaluation{"CByte(254.5)", "Byte 254"}, Evaluation{"CBool(2)", "Boolean True"},
        Evaluation{"CBool(0)", "Boolean False"}, Evaluation{"CBool(\"true\")", "Boolean True"},
        Evaluation{"CStr(1.5)", "String 1.5"}, Evaluation{"CStr(True)", "String True"},
        Evaluation{"CStr(Empty)", "String "}, Evaluation{"Hex(255)", "String FF"},
        Evaluation{"Hex(-1)", "String FFFF"}, Evaluation{"Hex(CLng(-1))", "String FFFFFFFF"},
        Evaluation{"Hex(10.5)", "String A"}, Evaluation{"Hex(Null)", "Null"},
        Evaluation{"RGB(0, 0, 0)", "Long 0"}, Evaluation{"RGB(255, 0, 0)", "Long 255"},
        Evaluation{"RGB(0, 255, 0)", "Long 65280"}, Evaluation{"rgb(1, 2, 3)", "Long 197121"},
        Evaluation{"RGB(300, 1.5, \"2\")", "Long 131839"}, Evaluation{"Oct(8)", "String 10"},
        Evaluation{"Oct(-1)", "String 177777"}, Evaluation{"IsNumeric(\"1.5\")", "Boolean True"},
        Evaluation{"IsNumeric(\"x\")", "Boolean False"}, Evaluation{"IsNumeric(\"1E999\")", "Boolean False"},
        Evaluation{"IsNumeric(Empty)", "Boolean True"}, Evaluation{"IsNumeric(Null)", "Boolean False"},
        Evaluation{"IsEmpty(unknown)", "Boolean True"}, Evaluation{"IsEmpty(0)", "Boolean False"},
        Evaluation{"IsNull(Null)", "Boolean True"}, Evaluation{"IsNull(Empty)", "Boolean False"}));

INSTANTIATE_TEST_SUITE_P(
    Types, Functions,
    testing::Values(
        Evaluation{"TypeName(1)", "String Integer"}, Evaluation{"TypeName(100000)", "String Long"},
        Evaluation{"TypeName(1.0)", "String Double"}, Evaluation{"TypeName(CSng(1))", "String Single"},
        Evaluation{"TypeName(CByte(1))", "String Byte"}, Evaluation{"TypeName(True)", "String Boolean"},
        Evaluation{"TypeName(\"\")", "String String"}, Evaluation{"TypeName(Empty)", "String Empty"},
        Evaluation{"TypeName(Null)", "String Null"}, Evaluation{"TypeName(MathLib)", "String MathLibrary"},
        Evaluation{"VarType(Empty)", "Integer 0"}, Evaluation{"VarType(Null)", "Integer 1"},
        Evaluation{"VarType(1)", "Integer 2"}, Evaluation{"VarType(100000)", "Integer 3"},
        Evaluation{"VarType(CSng(1))", "Integer 4"}, Evaluation{"VarType(1.0)", "Integer 5"},
        Evaluation{"VarType(\"\")", "Integer 8"}, Evaluation{"VarType(MathLib)", "Integer 9"},
        Evaluation{"VarType(True)", "Integer 11"}, Evaluation{"VarType(CByte(1))", "Integer 17"}));

INSTANTIATE_TEST_SUITE_P(
    Text, Functions,
    testing::Values(
        Evaluation{"Len(\"abc\")", "Long 3"}, Evaluation{"Len(12345)", "Long 5"},
        Evaluation{"Len(Null)", "Null"}, Evaluation{"Left(\"abc\", 2)", "String ab"},
        Evaluation{"Left(\"abc\", 9)", "String abc"}, Evaluation{"Left(Null, 1)", "Null"},
        Evaluation{"Right(\"abc\", 2)", "String bc"}, Evaluation{"Right(\"abc\", 0)", "String "},
        Evaluation{"Mid(\"abcd\", 2)", "String bcd"}, Evaluation{"Mid(\"abcd\", 2, 2)", "String bc"},
        Evaluation{"Mid(\"abcd\", 9)", "String "}, Evaluation{"InStr(\"hello\", \"l\")", "Long 3"},
        Evaluation{"InStr(4, \"hello\", \"l\")", "Long 4"},
        Evaluation{"InStr(5, \"hello\", \"l\")", "Long 0"},
        Evaluation{"InStr(9, \"hello\", \"l\")", "Long 0"}, Evaluation{"InStr(\"\", \"\")", "Long 0"},
        Evaluation{"InStr(2, \"abc\", \"\")", "Long 2"}, Evaluation{"InStr(1, \"ABC\", \"b\", 1)", "Long 2"},
        Evaluation{"InStr(1, \"ABC\", \"b\", 0)", "Long 0"}, Evaluation{"InStr(Null, \"a\")", "Null"},
        Evaluation{"InStrRev(\"hello\", \"l\")", "Long 4"},
        Evaluation{"InStrRev(\"hello\", \"l\", 3)", "Long 3"},
        Evaluation{"InStrRev(\"hello\", \"lo\", 4)", "Long 0"},
        Evaluation{"InStrRev(\"abc\", \"\")", "Long 3"}, Evaluation{"InStrRev(\"abc\", \"a\", 9)", "Long 0"},
        Evaluation{"InStrRev(\"ABC\", \"b\", -1, 1)", "Long 2"}, Evaluation{"UCase(\"aB1\")", "String AB1"},
        Evaluation{"LCase(\"aB1\")", "String ab1"}, Evaluation{"UCase(Null)", "Null"},
        Evaluation{"Trim(\"  a b \") & \"|\"", "String a b|"},
        Evaluation{"LTrim(\"  a \") & \"|\"", "String a |"},
        Evaluation{"RTrim(\"  a \") & \"|\"", "String   a|"}, Evaluation{"RTrim(\"  \") & \"|\"", "String |"},
        Evaluation{"Space(2) & \"|\"", "String   |"}, Evaluation{"String(3, \"xy\")", "String xxx"},
        Evaluation{"String(2, 65)", "String AA"}, Evaluation{"String(2, 321)", "String AA"},
        Evaluation{"String(2, Null)", "Null"}, Evaluation{"StrReverse(\"abc\")", "String cba"},
        Evaluation{"Replace(\"aXbX\", \"X\", \"--\")", "String a--b--"},
        Evaluation{"Replace(\"aXbX\", \"x\", \"-\")", "String aXbX"},
        Evaluation{"Replace(\"aXbX\", \"x\", \"-\", 1, -1, 1)", "String a-b-"},
        Evaluation{"Replace(\"aXbX\", \"X\", \"-\", 3)", "String b-"},
        Evaluation{"Replace(\"aXbX\", \"X\", \"-\", 1, 1)", "String a-bX"},
        Evaluation{"Replace(\"aX\", \"X\", \"-\", 9)", "String "},
        Evaluation{"Replace(\"ab\", \"\", \"x\")", "String ab"}, Evaluation{"Asc(\"A\")", "Integer 65"},
        Evaluation{"Chr(65)", "String A"}, Evaluation{"Asc(Chr(200))", "Integer 200"},
        Evaluation{"StrComp(\"a\", \"b\")", "Integer -1"}, Evaluation{"StrComp(\"b\", \"a\")", "Integer 1"},
        Evaluation{"StrComp(\"A\", \"a\", 1)", "Integer 0"}, Evaluation{"StrComp(\"A\", Null)", "Null"}));

TEST(FunctionErrors, NameTheCause) {
    EXPECT_EQ(evalError("1+Log(0)"), "line 1, column 3: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Log(-1)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Sqr(-1)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Exp(1000)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("CInt(32767.5)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("CLng(3E9)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("CByte(-1)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("CByte(256)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("CSng(1E300)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("CDbl(\"x\")"), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("CBool(\"x\")"), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("CBool(Null)"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("CStr(Null)"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("Sin(Null)"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("Sgn(Null)"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("sin(\"x\")"), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("RGB(-1, 0, 0)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("RGB(0, 40000, 0)"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("RGB(0, 0, Null)"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("Round(1, -1)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Left(\"a\", -1)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Mid(\"a\", 0)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Mid(\"a\", 1, -1)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("InStr(0, \"a\", \"a\")"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("InStr(1, \"a\", \"a\", 2)"),
              "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("InStrRev(\"a\", \"a\", 0)"),
              "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Replace(\"a\", \"a\", \"b\", 0)"),
              "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Replace(\"a\", \"a\", \"b\", 1, -2)"),
              "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Replace(Null, \"a\", \"b\")"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("StrReverse(Null)"), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(evalError("Asc(\"\")"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Chr(256)"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("String(1, \"\")"), "line 1, column 1: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("Space(-1)"), "line 1, column 1: 5 Invalid procedure call or argument");
}

TEST(FunctionErrors, ArgumentsAreCounted) {
    const std::string wrong = "450 Wrong number of arguments or invalid property assignment";
    EXPECT_EQ(evalError("sin()"), "line 1, column 1: " + wrong);
    EXPECT_EQ(evalError("1+sin"), "line 1, column 3: " + wrong);
    EXPECT_EQ(evalError("sin(1, 2)"), "line 1, column 1: " + wrong);
    EXPECT_EQ(evalError("Mid(\"a\")"), "line 1, column 1: " + wrong);
    EXPECT_EQ(evalError("MathLib.Pi(1)"), "line 1, column 9: " + wrong);
    EXPECT_EQ(evalError("MathLib.Radius(1)"), "line 1, column 9: " + wrong);
}

TEST(Rnd, FollowsTheKnownSequence) {
    zg::ScriptEngine engine;
    EXPECT_EQ(shown(engine.Eval("Rnd")), "Single 0.7055475");
    EXPECT_EQ(shown(engine.Eval("Rnd()")), "Single 0.533424");
    EXPECT_EQ(shown(engine.Eval("Rnd(1)")), "Single 0.5795186");
    EXPECT_EQ(shown(engine.Eval("Rnd(0)")), "Single 0.5795186");
    EXPECT_EQ(shown(engine.Eval("Rnd(-1)")), "Single 0.224007");
    EXPECT_EQ(shown(engine.Eval("Rnd")), "Single 3.584582E-02");
}

TEST(Rnd, IsRepeatedAfterRandomizeOfTheSameSeed) {
    zg::ScriptEngine engine;
    engine.AddCode(
        "a = Rnd(-1): Randomize 42: x = Rnd: b = Rnd(-1): Randomize 42: y = Rnd: Randomize 43: z = Rnd");
    EXPECT_EQ(shown(engine.Eval("x = y")), "Boolean True");
    EXPECT_EQ(shown(engine.Eval("x = z")), "Boolean False");
}

TEST(Rnd, RandomizeAloneTakesTheClock) {
    std::int64_t now = 1000;
    zg::ScriptEngine engine([&now] { return now; });
    engine.AddCode("a = Rnd(-1): Randomize: x = Rnd: b = Rnd(-1): Randomize 1: y = Rnd");
    EXPECT_EQ(shown(engine.Eval("x = y")), "Boolean True");
}

INSTANTIATE_TEST_SUITE_P(MathLib, Functions,
                         testing::Values(Evaluation{"MathLib.Pi", "Double 3.14159265358979"},
                                         Evaluation{"mathlib.PI()", "Double 3.14159265358979"},
                                         Evaluation{"MathLib.Radians(180)", "Double 3.14159265358979"},
                                         Evaluation{"MathLib.Degrees(MathLib.Pi)", "Double 180"},
                                         Evaluation{"MathLib.Area(2)/MathLib.Pi", "Double 4"},
                                         Evaluation{"MathLib.Circumference(1)/MathLib.Pi", "Double 2"},
                                         Evaluation{"MathLib.Diameter(3)", "Double 6"},
                                         Evaluation{"MathLib.Radius(3, 4)", "Double 5"},
                                         Evaluation{"MathLib.Sec(0)", "Double 1"},
                                         Evaluation{"MathLib.Csc(0)", "Double 0"},
                                         Evaluation{"MathLib.Cot(0)", "Double 0"},
                                         Evaluation{"Round(MathLib.pow(2, 10), 9)", "Double 1024"},
                                         Evaluation{"MathLib.Milliseconds(250)", "Double 0.25"},
                                         Evaluation{"MathLib.Milliseconds(2.5)", "Double 0.002"},
                                         Evaluation{"MathLib.Diameter(\"3\")", "Double 6"},
                                         Evaluation{"MathLib.Diameter(Empty)", "Double 0"}));

TEST(MathLib, NeedsItsNameAndKnowsItsMembers) {
    EXPECT_EQ(evaluated("Pi"), "Empty");
    EXPECT_EQ(evalError("Sec(1)"), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("1+MathLib.Sine(1)"),
              "line 1, column 11: 438 Object doesn't support this property or method");
    EXPECT_EQ(evalError("unknown.Pi"), "line 1, column 9: 424 Object required");
    EXPECT_EQ(evalError("unknown.Nothing"), "line 1, column 9: 424 Object required");
    EXPECT_EQ(evalError("MathLib."), "line 1, column 9: 1010 Expected identifier");
    EXPECT_EQ(evalError("MathLib(1)"),
              "line 1, column 1: 438 Object doesn't support this property or method");
    EXPECT_EQ(evalError("MathLib.pow(0, 2)"), "line 1, column 9: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("MathLib.pow(-1, 2)"), "line 1, column 9: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("MathLib.Milliseconds(40000)"), "line 1, column 9: 6 Overflow");
    EXPECT_EQ(evalError("MathLib.Diameter(1E308)"), "line 1, column 9: 6 Overflow");
    EXPECT_EQ(evalError("MathLib.Diameter(Null)"), "line 1, column 9: 94 Invalid use of Null");
    EXPECT_EQ(codeError("MathLib.Pi = 3"),
              "line 1, column 9: 438 Object doesn't support this property or method");
    EXPECT_EQ(codeError("MathLib = 3"), "line 1, column 1: 501 Illegal assignment");
}

TEST(MathLib, IsNoObjectBeforeItIsAdded) {
    zg::ScriptEngine engine;
    EXPECT_EQ(scriptError([&] { engine.AddCode("a = MathLib.Pi"); }),
              "line 1, column 13: 424 Object required");
    engine.AddObject("MathLib", {});
    engine.AddCode("a = MathLib.Pi");
    EXPECT_EQ(shown(engine.Eval("a")), "Double 3.14159265358979");
}

TEST(MathLib, MayHaveAnyName) {
    zg::ScriptEngine engine;
    engine.AddObject("M", {});
    EXPECT_EQ(shown(engine.Eval("m.diameter(2)")), "Double 4");
}

}  // namespace
