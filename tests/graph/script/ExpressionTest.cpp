#include "tests/graph/script/Engine.h"

namespace {

class Expression : public ::testing::TestWithParam<Row> {};

TEST_P(Expression, HasItsKindAndValue) {
    Engine engine;
    EXPECT_EQ(engine.eval(GetParam().source), GetParam().result) << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(
    Literals, Expression,
    ::testing::Values(Row{"1", "Integer 1"}, Row{"32767", "Integer 32767"}, Row{"32768", "Long 32768"},
                      Row{"2147483648", "Double 2147483648"}, Row{"1.0", "Double 1"}, Row{".5", "Double 0.5"},
                      Row{"1e3", "Double 1000"}, Row{"1.74532925199433E-02", "Double 1.74532925199433E-02"},
                      Row{"&H1F", "Integer 31"}, Row{"&HFFFF", "Integer -1"}, Row{"&HFFFF&", "Long 65535"},
                      Row{"&O17", "Integer 15"}, Row{"\"a\"\"b\"", "String a\"b"},
                      Row{"True", "Boolean True"}, Row{"EMPTY", "Empty"}, Row{"null", "Null"}));

INSTANTIATE_TEST_SUITE_P(
    Precedence, Expression,
    ::testing::Values(Row{"-2^2", "Double -4"}, Row{"2^-1", "Double 0.5"}, Row{"2^3^2", "Double 64"},
                      Row{"1+2*3", "Integer 7"}, Row{"(1+2)*3", "Integer 9"}, Row{"10-4-3", "Integer 3"},
                      Row{"7\\2*2", "Integer 1"}, Row{"7*2\\3", "Integer 4"}, Row{"7 Mod 4\\2", "Integer 1"},
                      Row{"2+7 Mod 4", "Integer 5"}, Row{"1+1 & 2+2", "String 24"},
                      Row{"1 & 2 = \"12\"", "Boolean True"}, Row{"Not 1 = 2", "Boolean True"},
                      Row{"True Or False And False", "Boolean True"},
                      Row{"True Xor True Or True", "Boolean False"},
                      Row{"False Imp False Eqv False", "Boolean True"}, Row{"-3 Mod 2", "Integer -1"},
                      Row{"- -2", "Integer 2"}, Row{"+2", "Integer 2"}));

INSTANTIATE_TEST_SUITE_P(
    Kinds, Expression,
    ::testing::Values(Row{"32767+1", "Long 32768"}, Row{"200*200", "Long 40000"},
                      Row{"2147483647+1", "Double 2147483648"}, Row{"6/3", "Double 2"},
                      Row{"7\\2", "Integer 3"}, Row{"-7\\2", "Integer -3"}, Row{"2.5\\1", "Integer 2"},
                      Row{"3.5\\1", "Integer 4"}, Row{"5.5 Mod 4", "Integer 2"}, Row{"\"2\"+3", "Double 5"},
                      Row{"\"2\"+\"3\"", "String 23"}, Row{"\"2\"*\"3\"", "Double 6"},
                      Row{"True+1", "Integer 0"}, Row{"x+1", "Integer 1"}, Row{"x & \"a\"", "String a"},
                      Row{"Null+1", "Null"}, Row{"Null & \"a\"", "String a"},
                      Row{"CSng(1)/3", "Double 0.333333333333333"}, Row{"CSng(0.1)+1", "Single 1.1"}));

INSTANTIATE_TEST_SUITE_P(Comparisons, Expression,
                         ::testing::Values(Row{"1<2", "Boolean True"}, Row{"2<=1", "Boolean False"},
                                           Row{"2=>1", "Boolean True"}, Row{"1><2", "Boolean True"},
                                           Row{"\"a\"<\"b\"", "Boolean True"},
                                           Row{"\"A\"=\"a\"", "Boolean False"},
                                           Row{"1<\"a\"", "Boolean True"}, Row{"x=0", "Boolean True"},
                                           Row{"x=\"\"", "Boolean True"}, Row{"Null=1", "Null"}));

INSTANTIATE_TEST_SUITE_P(Bits, Expression,
                         ::testing::Values(Row{"12 And 10", "Integer 8"}, Row{"12 Or 10", "Integer 14"},
                                           Row{"12 Xor 10", "Integer 6"}, Row{"Not 0", "Integer -1"},
                                           Row{"12 Eqv 10", "Integer -7"}, Row{"12 Imp 10", "Integer -5"},
                                           Row{"70000 And 65536", "Long 65536"},
                                           Row{"Not False", "Boolean True"}));

TEST(Names, HaveNoLetterCaseAndUnknownOnesAreNothing) {
    Engine engine;
    engine.script.AddCode("aBc = 5");
    EXPECT_EQ(engine.eval("ABC + Sqr(4)"), "Double 7");
    EXPECT_EQ(engine.eval("unknown"), "Empty");
    EXPECT_EQ(engine.script.EvalNumber("4*unknown"), 0);
    EXPECT_EQ(engine.eval("Pi"), "Empty") << "there is no global Pi";
}

}  // namespace
