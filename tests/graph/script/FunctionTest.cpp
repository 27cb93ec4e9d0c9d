#include <cmath>

#include "tests/graph/script/Engine.h"

namespace {

class Function : public ::testing::TestWithParam<Row> {};

TEST_P(Function, HasItsKindAndValue) {
    Engine engine;
    EXPECT_EQ(engine.eval(GetParam().source), GetParam().result) << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, Function,
    ::testing::Values(
        Row{"Abs(-3)", "Integer 3"}, Row{"Abs(-2.5)", "Double 2.5"}, Row{"Sgn(-9)", "Integer -1"},
        Row{"Int(-2.5)", "Double -3"}, Row{"Fix(-2.5)", "Double -2"}, Row{"Round(2.5)", "Double 2"},
        Row{"Round(3.5)", "Double 4"}, Row{"Round(0.125, 2)", "Double 0.12"}, Row{"CInt(2.5)", "Integer 2"},
        Row{"CInt(3.5)", "Integer 4"}, Row{"CLng(2.5)", "Long 2"}, Row{"CLng(-3.5)", "Long -4"},
        Row{"CDbl(\"1.5\")", "Double 1.5"}, Row{"CByte(254.5)", "Byte 254"}, Row{"CBool(2)", "Boolean True"},
        Row{"CStr(1.5)", "String 1.5"}, Row{"CSng(0.1)", "Single 0.1"}, Row{"Hex(255)", "String FF"},
        Row{"Hex(-1)", "String FFFF"}, Row{"Oct(8)", "String 10"}, Row{"Sqr(9)", "Double 3"},
        Row{"Exp(0)", "Double 1"}, Row{"Log(1)", "Double 0"}, Row{"Atn(0)", "Double 0"},
        Row{"Cos(0)", "Double 1"}, Row{"Abs(Null)", "Null"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Function,
    ::testing::Values(Row{"Len(\"abc\")", "Long 3"}, Row{"Left(\"abc\", 2)", "String ab"},
                      Row{"Right(\"abc\", 9)", "String abc"}, Row{"Mid(\"abcdef\", 3, 2)", "String cd"},
                      Row{"Mid(\"abc\", 2)", "String bc"}, Row{"InStr(\"abcabc\", \"c\")", "Long 3"},
                      Row{"InStr(4, \"abcabc\", \"c\")", "Long 6"},
                      Row{"InStr(1, \"ABC\", \"b\", 1)", "Long 2"}, Row{"InStr(\"abc\", \"x\")", "Long 0"},
                      Row{"InStrRev(\"abcabc\", \"b\")", "Long 5"}, Row{"UCase(\"aB\")", "String AB"},
                      Row{"LCase(\"aB\")", "String ab"}, Row{"Trim(\"  a \") & \"|\"", "String a|"},
                      Row{"LTrim(\"  a \") & \"|\"", "String a |"},
                      Row{"RTrim(\" a  \") & \"|\"", "String  a|"}, Row{"Space(2) & \"a\"", "String   a"},
                      Row{"String(3, \"xy\")", "String xxx"}, Row{"StrReverse(\"abc\")", "String cba"},
                      Row{"Replace(\"aXbX\", \"X\", \"--\")", "String a--b--"},
                      Row{"Replace(\"aXbX\", \"x\", \"-\", 1, 1, 1)", "String a-bX"},
                      Row{"Asc(\"A\")", "Integer 65"}, Row{"Chr(65)", "String A"},
                      Row{"StrComp(\"a\", \"B\", 1)", "Integer -1"},
                      Row{"IsNumeric(\"1e3\")", "Boolean True"}, Row{"IsNumeric(\"x\")", "Boolean False"},
                      Row{"IsEmpty(x)", "Boolean True"}, Row{"IsNull(Null)", "Boolean True"},
                      Row{"TypeName(1.5)", "String Double"}, Row{"VarType(\"a\")", "Integer 8"}));

INSTANTIATE_TEST_SUITE_P(
    MathLib, Function,
    ::testing::Values(
        Row{"MathLib.Pi", "Double 3.14159265358979"}, Row{"mathlib.pi()", "Double 3.14159265358979"},
        Row{"MathLib.Radians(180)", "Double 3.14159265358979"}, Row{"MathLib.Degrees(0)", "Double 0"},
        Row{"MathLib.Area(1)", "Double 3.14159265358979"},
        Row{"MathLib.Circumference(0.5)", "Double 3.14159265358979"}, Row{"MathLib.Diameter(2)", "Double 4"},
        Row{"MathLib.Radius(3, 4)", "Double 5"}, Row{"MathLib.Sec(0)", "Double 1"},
        Row{"MathLib.Csc(0)", "Double 0"}, Row{"MathLib.Cot(0)", "Double 0"},
        Row{"Round(MathLib.pow(2, 10), 6)", "Double 1024"}, Row{"MathLib.Milliseconds(250)", "Double 0.25"}));

TEST(Random, IsTheSameSequenceFromTheSameSeed) {
    Engine first;
    Engine second;
    EXPECT_EQ(first.eval("Rnd"), "Single 0.7055475") << "the first number of an engine that was not seeded";
    EXPECT_EQ(first.eval("Rnd"), "Single 0.533424");
    const std::string seeded = second.eval("Rnd(-1)");
    second.eval("Rnd");
    EXPECT_EQ(second.eval("Rnd(-1)"), seeded);
    EXPECT_EQ(second.eval("Rnd(0)"), seeded) << "0 repeats the last";
    second.script.AddCode("Randomize 5");
    const std::string afterSeed = second.eval("Rnd");
    second.script.AddCode("Randomize 5");
    EXPECT_EQ(second.eval("Rnd"), afterSeed);
}

}  // namespace
