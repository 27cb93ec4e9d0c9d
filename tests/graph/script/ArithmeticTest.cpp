#include <gtest/gtest.h>

#include <cmath>

#include "graph/script/SmallPowers.h"
#include "tests/graph/script/ScriptSupport.h"

namespace {

class Arithmetic : public testing::TestWithParam<Evaluation> {};

TEST_P(Arithmetic, GivesValueAndWidth) { EXPECT_EQ(evaluated(GetParam().expression), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(
    Precedence, Arithmetic,
    testing::Values(Evaluation{"2+3*4", "Integer 14"}, Evaluation{"(2+3)*4", "Integer 20"},
                    Evaluation{"-2^2", "Double -4"}, Evaluation{"2^-1", "Double 0.5"},
                    Evaluation{"2^3^2", "Double 64"}, Evaluation{"2^-3^2", "Double 0.015625"},
                    Evaluation{"2^+-+2", "Double 0.25"}, Evaluation{"-2*3", "Integer -6"},
                    Evaluation{"2*-3", "Integer -6"}, Evaluation{"2--3", "Integer 5"},
                    Evaluation{"- -3", "Integer 3"}, Evaluation{"+3", "Integer 3"},
                    Evaluation{"10-4-3", "Integer 3"}, Evaluation{"24/4/2", "Double 3"},
                    Evaluation{"7\\2*2", "Integer 1"}, Evaluation{"2*7\\4", "Integer 3"},
                    Evaluation{"7\\2/2", "Long 7"}, Evaluation{"10 Mod 4*2", "Integer 2"},
                    Evaluation{"15 Mod 8\\2", "Integer 3"}, Evaluation{"5+10 Mod 4", "Integer 7"},
                    Evaluation{"1 & 2+3", "String 15"}, Evaluation{"1 & 2 = 12", "Boolean False"},
                    Evaluation{"1 & 2 = \"12\"", "Boolean True"}, Evaluation{"1+1=2", "Boolean True"},
                    Evaluation{"1<2<3", "Boolean True"}, Evaluation{"3>2>1", "Boolean False"},
                    Evaluation{"Not 1=2", "Boolean True"}, Evaluation{"1 + Not 2 = 3", "Integer 0"},
                    Evaluation{"True Or False And False", "Boolean True"},
                    Evaluation{"True Xor True Or True", "Boolean False"},
                    Evaluation{"False Eqv True Xor True", "Boolean True"},
                    Evaluation{"False Imp False Eqv False", "Boolean True"},
                    Evaluation{"2 mod 3 MOD 4", "Integer 2"}, Evaluation{"-3^2*2+1", "Double -17"}));

INSTANTIATE_TEST_SUITE_P(
    Widths, Arithmetic,
    testing::Values(
        Evaluation{"32767", "Integer 32767"}, Evaluation{"32768", "Long 32768"},
        Evaluation{"2147483647", "Long 2147483647"}, Evaluation{"2147483648", "Double 2147483648"},
        Evaluation{"32767+1", "Long 32768"}, Evaluation{"-32768", "Long -32768"},
        Evaluation{"200*200", "Long 40000"}, Evaluation{"65536*65536", "Double 4294967296"},
        Evaluation{"2147483647+1", "Double 2147483648"}, Evaluation{"1+1.0", "Double 2"},
        Evaluation{"6/3", "Double 2"}, Evaluation{"2^2", "Double 4"}, Evaluation{"True+True", "Integer -2"},
        Evaluation{"-True", "Integer 1"}, Evaluation{"Empty+Empty", "Integer 0"},
        Evaluation{"Empty*5", "Integer 0"}, Evaluation{"-Empty", "Integer 0"},
        Evaluation{"CByte(200)+CByte(50)", "Byte 250"}, Evaluation{"CByte(200)+CByte(100)", "Integer 300"},
        Evaluation{"CByte(3)-CByte(5)", "Integer -2"}, Evaluation{"-CByte(3)", "Integer -3"},
        Evaluation{"-CInt(-32768)", "Long 32768"}, Evaluation{"CSng(1)/CSng(4)", "Single 0.25"},
        Evaluation{"CSng(0.1)*2", "Single 0.2"}, Evaluation{"CSng(1)+CLng(1)", "Double 2"},
        Evaluation{"CSng(1)+1.5", "Double 2.5"}, Evaluation{"CSng(1)/3", "Single 0.3333333"},
        Evaluation{"CSng(3E38)*CSng(10)", "Double 3.00000000549776E+39"}, Evaluation{"\"3\"*2", "Double 6"},
        Evaluation{"\"3\"+2", "Double 5"}, Evaluation{"-\"3\"", "Double -3"},
        Evaluation{"1E3", "Double 1000"}, Evaluation{"Null+1", "Null"}, Evaluation{"-Null", "Null"},
        Evaluation{"1^Null", "Null"}, Evaluation{"1/Null", "Null"}, Evaluation{"0*-5", "Integer 0"}));

INSTANTIATE_TEST_SUITE_P(WholeDivision, Arithmetic,
                         testing::Values(Evaluation{"7\\2", "Integer 3"}, Evaluation{"-7\\2", "Integer -3"},
                                         Evaluation{"7\\-2", "Integer -3"},
                                         Evaluation{"7 Mod -2", "Integer 1"},
                                         Evaluation{"-7 Mod 2", "Integer -1"}, Evaluation{"2.5\\1", "Long 2"},
                                         Evaluation{"3.5\\1", "Long 4"}, Evaluation{"19 Mod 6.7", "Long 5"},
                                         Evaluation{"6.5 Mod 4", "Long 2"},
                                         Evaluation{"100000\\3", "Long 33333"},
                                         Evaluation{"-2147483648 Mod -1", "Long 0"}));

INSTANTIATE_TEST_SUITE_P(Powers, Arithmetic,
                         testing::Values(Evaluation{"0^0", "Double 1"}, Evaluation{"(-2)^3", "Double -8"},
                                         Evaluation{"(-2)^-1", "Double -0.5"}, Evaluation{"4^.5", "Double 2"},
                                         Evaluation{"True^2", "Double 1"},
                                         Evaluation{"\"2\"^\"5\"", "Double 32"}));

INSTANTIATE_TEST_SUITE_P(
    Comparisons, Arithmetic,
    testing::Values(Evaluation{"1=1.0", "Boolean True"}, Evaluation{"1<>1", "Boolean False"},
                    Evaluation{"2>=2", "Boolean True"}, Evaluation{"2<=1", "Boolean False"},
                    Evaluation{"2=>2", "Boolean True"}, Evaluation{"2=<1", "Boolean False"},
                    Evaluation{"1><2", "Boolean True"}, Evaluation{"True<False", "Boolean True"},
                    Evaluation{"\"a\"<\"b\"", "Boolean True"}, Evaluation{"\"a\"=\"A\"", "Boolean False"},
                    Evaluation{"\"abc\">\"ab\"", "Boolean True"}, Evaluation{"9<\"1\"", "Boolean True"},
                    Evaluation{"\"1\"=1", "Boolean False"}, Evaluation{"\"\"=Empty", "Boolean True"},
                    Evaluation{"Empty<\"a\"", "Boolean True"}, Evaluation{"Empty=0", "Boolean True"},
                    Evaluation{"Empty=Empty", "Boolean True"}, Evaluation{"Null=Null", "Null"},
                    Evaluation{"1<Null", "Null"}));

INSTANTIATE_TEST_SUITE_P(
    Logic, Arithmetic,
    testing::Values(Evaluation{"True And False", "Boolean False"}, Evaluation{"6 And 3", "Integer 2"},
                    Evaluation{"6 Or 3", "Integer 7"}, Evaluation{"6 Xor 3", "Integer 5"},
                    Evaluation{"6 Eqv 3", "Integer -6"}, Evaluation{"6 Imp 3", "Integer -5"},
                    Evaluation{"Not 6", "Integer -7"}, Evaluation{"Not 6.5", "Long -7"},
                    Evaluation{"Not True", "Boolean False"}, Evaluation{"True And 3", "Integer 3"},
                    Evaluation{"Empty Or 4", "Integer 4"}, Evaluation{"100000 And 65535", "Long 34464"},
                    Evaluation{"2.5 Or 0", "Long 2"}, Evaluation{"\"6\" And 3", "Long 2"},
                    Evaluation{"Not Null", "Null"}, Evaluation{"False And Null", "Boolean False"},
                    Evaluation{"Null And True", "Null"}, Evaluation{"Null Or True", "Boolean True"},
                    Evaluation{"Null Or 0", "Null"}, Evaluation{"Null And 0", "Integer 0"},
                    Evaluation{"False Imp Null", "Boolean True"}, Evaluation{"Null Imp True", "Boolean True"},
                    Evaluation{"Null Imp False", "Null"}, Evaluation{"True Imp Null", "Null"},
                    Evaluation{"Null Xor True", "Null"}, Evaluation{"Null Eqv Null", "Null"}));

INSTANTIATE_TEST_SUITE_P(
    Texts, Arithmetic,
    testing::Values(Evaluation{"\"a\" & \"b\"", "String ab"}, Evaluation{"\"a\"+\"b\"", "String ab"},
                    Evaluation{"1 & 2", "String 12"}, Evaluation{"1.5 & True", "String 1.5True"},
                    Evaluation{"Empty & \"x\"", "String x"}, Evaluation{"Empty+\"x\"", "String x"},
                    Evaluation{"\"x\"+Empty", "String x"}, Evaluation{"Null & \"x\"", "String x"},
                    Evaluation{"\"x\" & Null", "String x"}, Evaluation{"Null & Null", "Null"},
                    Evaluation{"\"x\"+Null", "Null"}, Evaluation{"0.1 & \"\"", "String 0.1"},
                    Evaluation{"1E20 & \"\"", "String 1E+20"}, Evaluation{"CSng(0.1) & \"\"", "String 0.1"}));

TEST(ArithmeticErrors, KeepTheirNumbersApart) {
    EXPECT_EQ(evalError("1/0"), "line 1, column 2: 11 Division by zero");
    EXPECT_EQ(evalError("0/0"), "line 1, column 2: 6 Overflow");
    EXPECT_EQ(evalError("1\\0"), "line 1, column 2: 11 Division by zero");
    EXPECT_EQ(evalError("1\\0.4"), "line 1, column 2: 11 Division by zero");
    EXPECT_EQ(evalError("1 Mod 0"), "line 1, column 3: 11 Division by zero");
    EXPECT_EQ(evalError("1E308*10"), "line 1, column 6: 6 Overflow");
    EXPECT_EQ(evalError("1E308+1E308"), "line 1, column 6: 6 Overflow");
    EXPECT_EQ(evalError("1E308/1E-10"), "line 1, column 6: 6 Overflow");
    EXPECT_EQ(evalError("10^400"), "line 1, column 3: 6 Overflow");
    EXPECT_EQ(evalError("0^-1"), "line 1, column 2: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("(-8)^(1/3)"), "line 1, column 5: 5 Invalid procedure call or argument");
    EXPECT_EQ(evalError("1E10\\1"), "line 1, column 5: 6 Overflow");
    EXPECT_EQ(evalError("1E10 And 1"), "line 1, column 6: 6 Overflow");
    EXPECT_EQ(evalError("-2147483648\\-1"), "line 1, column 12: 6 Overflow");
    EXPECT_EQ(evalError("\"x\"*2"), "line 1, column 4: 13 Type mismatch");
    EXPECT_EQ(evalError("1+\"x\""), "line 1, column 2: 13 Type mismatch");
    EXPECT_EQ(evalError("-\"x\""), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("Not \"x\""), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(evalError("MathLib+1"), "line 1, column 8: 438 Object doesn't support this property or method");
    EXPECT_EQ(evalError("MathLib=\"x\""),
              "line 1, column 8: 438 Object doesn't support this property or method");
}

/// The products are the nearest double, as far as the wider reference type can tell.
TEST(SmallPowers, AreCorrectlyRounded) {
    std::uint64_t state = 12345;
    for (int i = 0; i < 20000; ++i) {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        const double mantissa = 1 + static_cast<double>(state >> 12) / 4503599627370496.0;
        const double x = (i % 2 ? -1 : 1) * std::ldexp(mantissa, static_cast<int>(state % 61) - 30);
        for (const int n : {2, 3, 4, 5}) {
            const double ours = zg::script::power(x, n);
            const long double exact = std::pow(static_cast<long double>(x), n);
            const double ulp = std::fabs(std::nextafter(ours, INFINITY) - ours);
            ASSERT_LE(std::fabs(static_cast<double>(exact - static_cast<long double>(ours))), 0.501 * ulp)
                << x << "^" << n;
        }
    }
}

TEST(SmallPowers, KeepTheEndsOfTheRange) {
    EXPECT_EQ(zg::script::power(1e102, 3), std::pow(1e102, 3));
    EXPECT_EQ(zg::script::power(1e-105, 3), std::pow(1e-105, 3));
    EXPECT_EQ(zg::script::power(0, 5), 0);
    EXPECT_EQ(zg::script::power(-1e70, 4), std::pow(-1e70, 4));
    EXPECT_TRUE(std::isinf(zg::script::power(1e200, 2)));
    EXPECT_TRUE(std::isinf(zg::script::power(-1e100, 5)));
}

}  // namespace
