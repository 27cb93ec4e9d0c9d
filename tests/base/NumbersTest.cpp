#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(Val, ReadsTheLongestLeadingNumber) {
    EXPECT_EQ(val("25%"), 25);
    EXPECT_EQ(val("1,5"), 1);
    EXPECT_EQ(val(""), 0);
    EXPECT_EQ(val("abc"), 0);
    EXPECT_EQ(val("-.5x"), -0.5);
    EXPECT_EQ(val("+7"), 7);
    EXPECT_EQ(val("5."), 5);
    EXPECT_EQ(val("."), 0);
    EXPECT_EQ(val("-"), 0);
    EXPECT_EQ(val("1.2.3"), 1.2);
}

TEST(Val, PassesOverBlanksEverywhere) {
    EXPECT_EQ(val("  1 615 198th"), 1615198);
    EXPECT_EQ(val("\t2\n5"), 25);
}

TEST(Val, TakesAnExponentOnlyWhenItIsWhole) {
    EXPECT_EQ(val("1e3"), 1000);
    EXPECT_EQ(val("1D3"), 1000);
    EXPECT_EQ(val("1e"), 1);
    EXPECT_EQ(val("1e+"), 1);
    EXPECT_EQ(val("1e-2m"), 0.01);
}

TEST(Val, NeverFailsOnNumbersOfAnySize) {
    EXPECT_EQ(val("1e400"), std::numeric_limits<double>::max());
    EXPECT_EQ(val("-1e400"), std::numeric_limits<double>::lowest());
    EXPECT_EQ(val("1e-400"), 0);
    EXPECT_GT(val(std::string(1000000, '9')), 1e307);
    EXPECT_EQ(val("NaN"), 0);
    EXPECT_EQ(val("inf"), 0);
}

TEST(ToDouble, TakesTheWholeText) {
    EXPECT_EQ(toDouble(" 1.5 "), 1.5);
    EXPECT_EQ(toDouble("-2"), -2);
    EXPECT_EQ(toDouble("+2"), 2);
    EXPECT_EQ(toDouble(".5"), 0.5);
    EXPECT_EQ(toDouble("5."), 5);
    EXPECT_EQ(toDouble("1E-01"), 0.1);
    EXPECT_EQ(toDouble("1d2"), 100);
}

TEST(ToDouble, PassesOverGroupingCommasOfTheWholePart) {
    EXPECT_EQ(toDouble("1,234.5"), 1234.5);
    EXPECT_EQ(toDouble("1,234,567"), 1234567);
    EXPECT_RAISES(13, "Type mismatch", toDouble(",5"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1.5,0"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1e1,0"));
}

TEST(ToDouble, RefusesWhatIsNoNumber) {
    for (const char* text : {"", "   ", "abc", "1 2", "12x", "--1", "1e", "NaN", "nan", "inf", "infinity",
                             "-", ".", "\t1", "0x10", "1.2.3"})
        EXPECT_RAISES(13, "Type mismatch", toDouble(text)) << text;
}

TEST(ToDouble, RaisesOverflowForNumbersTooLargeAndMakesTinyOnesNothing) {
    EXPECT_RAISES(6, "Overflow", toDouble("1e400"));
    EXPECT_RAISES(6, "Overflow", toDouble("-1e400"));
    EXPECT_RAISES(6, "Overflow", toDouble("1" + std::string(400, '0')));
    EXPECT_EQ(toDouble("1e-400"), 0);
    EXPECT_EQ(toDouble("-1e-400"), 0);
    EXPECT_EQ(toDouble("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(toDouble("." + std::string(400, '0') + "1"), 0);
}

TEST(ToSingle, IsTheNearestSingleAndOverflowsBeyondIt) {
    EXPECT_EQ(toSingle("0.1"), 0.1F);
    EXPECT_EQ(toSingle("1.473763E+07"), 14737630.0F);
    EXPECT_RAISES(6, "Overflow", toSingle("1e39"));
    EXPECT_RAISES(6, "Overflow", toSingle(std::nan("")));
}

TEST(ToInteger, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(toInt16("8.25"), 8);
    EXPECT_EQ(toInt16("10.5"), 10);
    EXPECT_EQ(toInt16("11.5"), 12);
    EXPECT_EQ(toInt16("-0.5"), 0);
    EXPECT_EQ(toInt16("-1.5"), -2);
    EXPECT_EQ(toInt32("2147483646.5"), 2147483646);
}

TEST(ToInteger, OverflowsOutsideItsWidth) {
    EXPECT_EQ(toInt16("32767.4"), 32767);
    EXPECT_RAISES(6, "Overflow", toInt16("32767.5"));
    EXPECT_EQ(toInt16("-32768.5"), -32768);
    EXPECT_RAISES(6, "Overflow", toInt16("-32769"));
    EXPECT_EQ(toInt32("2147483647"), 2147483647);
    EXPECT_RAISES(6, "Overflow", toInt32("2147483648"));
    EXPECT_EQ(toInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_RAISES(6, "Overflow", toInt32(std::nan("")));
    EXPECT_RAISES(6, "Overflow", toInt16(std::numeric_limits<double>::infinity()));
}

TEST(RoundHalfEven, KeepsTheEvenNeighbourOfATie) {
    EXPECT_EQ(roundHalfEven(0.5), 0);
    EXPECT_EQ(roundHalfEven(1.5), 2);
    EXPECT_EQ(roundHalfEven(2.5), 2);
    EXPECT_EQ(roundHalfEven(0.125, 2), 0.12);
    EXPECT_EQ(roundHalfEven(0.375, 2), 0.38);
    EXPECT_EQ(roundHalfEven(-0.125, 2), -0.12);
    EXPECT_EQ(roundHalfEven(0.00004, 4), 0);
    EXPECT_EQ(roundHalfEven(0.00006, 4), 0.0001);
    EXPECT_EQ(roundHalfEven(1e300, 20), 1e300);
}

TEST(SingleText, HasSevenDigitsWithoutTrailingZeros) {
    EXPECT_EQ(singleText(0), "0");
    EXPECT_EQ(singleText(-0.0F), "0");
    EXPECT_EQ(singleText(5), "5");
    EXPECT_EQ(singleText(0.5F), "0.5");
    EXPECT_EQ(singleText(-0.1F), "-0.1");
    EXPECT_EQ(singleText(92.4F), "92.4");
    EXPECT_EQ(singleText(100), "100");
    EXPECT_EQ(singleText(1.0F / 3), "0.3333333");
    EXPECT_EQ(singleText(123456.78F), "123456.8");
}

TEST(SingleText, TurnsToExponentsAtTenMillion) {
    EXPECT_EQ(singleText(9999999), "9999999");
    EXPECT_EQ(singleText(1e7F), "1E+07");
    EXPECT_EQ(singleText(14737632), "1.473763E+07");
    EXPECT_EQ(singleText(16711680), "1.671168E+07");
    EXPECT_EQ(singleText(16776960), "1.677696E+07");
    EXPECT_EQ(singleText(16777215), "1.677722E+07");
    EXPECT_EQ(singleText(std::numeric_limits<float>::max()), "3.402823E+38");
}

TEST(SingleText, TurnsToExponentsBelowOneWhenMoreThanSevenDecimalsAreNeeded) {
    EXPECT_EQ(singleText(0.0001F), "0.0001");
    EXPECT_EQ(singleText(0.0000001F), "0.0000001");
    EXPECT_EQ(singleText(0.00000001F), "1E-08");
    EXPECT_EQ(singleText(0.01234567F), "1.234567E-02");
    EXPECT_EQ(singleText(0.1234567F), "0.1234567");
}

TEST(SingleText, ReadsBackWithinItsDigits) {
    std::uint32_t bits = 1;
    for (int i = 0; i < 20000; ++i) {
        bits = bits * 1664525U + 1013904223U;
        const float value = std::bit_cast<float>(bits);
        if (!std::isfinite(value) || std::abs(value) > 3.4e38F || std::abs(value) < 1e-37F) continue;
        EXPECT_NEAR(toSingle(singleText(value)) / value, 1, 1e-6) << value;
    }
}

TEST(DoubleText, HasFifteenDigits) {
    EXPECT_EQ(doubleText(0.1), "0.1");
    EXPECT_EQ(doubleText(3.5), "3.5");
    EXPECT_EQ(doubleText(0.0174532925199433), "1.74532925199433E-02");
    EXPECT_EQ(doubleText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(doubleText(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(doubleText(999999999999999.0), "999999999999999");
    EXPECT_EQ(doubleText(1e15), "1E+15");
    EXPECT_EQ(doubleText(-1e-15), "-0.000000000000001");
    EXPECT_EQ(doubleText(1e-16), "1E-16");
    EXPECT_EQ(doubleText(1e300), "1E+300");
}

TEST(Booleans, AreWordsOrNumbers) {
    EXPECT_EQ(boolText(true), "True");
    EXPECT_EQ(boolText(false), "False");
    EXPECT_TRUE(toBool(" TRUE "));
    EXPECT_FALSE(toBool("false"));
    EXPECT_TRUE(toBool("-1"));
    EXPECT_FALSE(toBool("0"));
    EXPECT_RAISES(13, "Type mismatch", toBool("yes"));
    EXPECT_RAISES(13, "Type mismatch", toBool(""));
}

TEST(Format00, HasAtLeastTwoDigitsAndRoundsHalvesAway) {
    EXPECT_EQ(format00("7"), "07");
    EXPECT_EQ(format00("23"), "23");
    EXPECT_EQ(format00("123"), "123");
    EXPECT_EQ(format00(0.0), "00");
    EXPECT_EQ(format00(2.5), "03");
    EXPECT_EQ(format00(3.5), "04");
    EXPECT_RAISES(13, "Type mismatch", format00("x"));
}

TEST(FormatScientific, HasTwoDecimalsAndASignedExponent) {
    EXPECT_EQ(formatScientific(0.5 * 1.94384617178935), "9.72E-01");
    EXPECT_EQ(formatScientific(0), "0.00E+00");
    EXPECT_EQ(formatScientific(-12345), "-1.23E+04");
    EXPECT_EQ(formatScientific(1e100), "1.00E+100");
}

TEST(IntegerDivision, GoesTowardZeroAndTheRemainderTakesTheDividendsSign) {
    EXPECT_EQ(idiv(7, 2), 3);
    EXPECT_EQ(idiv(-7, 2), -3);
    EXPECT_EQ(imod(-7, 2), -1);
    EXPECT_EQ(imod(7, -2), 1);
    EXPECT_RAISES(11, "Division by zero", idiv(1, 0));
    EXPECT_RAISES(11, "Division by zero", imod(1, 0));
    EXPECT_RAISES(6, "Overflow", idiv(std::numeric_limits<std::int32_t>::min(), -1));
    EXPECT_EQ(imod(std::numeric_limits<std::int32_t>::min(), -1), 0);
}

TEST(IntFloor, GoesDown) {
    EXPECT_EQ(intFloor(2.9), 2);
    EXPECT_EQ(intFloor(-2.1), -3);
}

}  // namespace
}  // namespace zg
