#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <regex>
#include <string>

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
    EXPECT_EQ(val("  1 2"), 12);
    EXPECT_EQ(val("- 1 . 5 e 2 %"), -150);
    EXPECT_EQ(val(" \t\r\n "), 0);
    EXPECT_EQ(val(std::string(1000000, ' ') + "7"), 7);
}

TEST(Val, TakesAnExponentOnlyWhenItIsWhole) {
    EXPECT_EQ(val("1e3"), 1000);
    EXPECT_EQ(val("1D3"), 1000);
    EXPECT_EQ(val("1e"), 1);
    EXPECT_EQ(val("1e+"), 1);
    EXPECT_EQ(val("1e-2m"), 0.01);
    EXPECT_EQ(val("1d3x"), 1000);
    EXPECT_EQ(val("1e2.5"), 100);
    EXPECT_EQ(val("e5"), 0);
}

TEST(Val, NeverFailsOnNumbersOfAnySize) {
    EXPECT_EQ(val("1e400"), std::numeric_limits<double>::max());
    EXPECT_EQ(val("-1e400"), std::numeric_limits<double>::lowest());
    EXPECT_EQ(val("1e-400"), 0);
    EXPECT_GT(val(std::string(1000000, '9')), 1e307);
    EXPECT_EQ(val("NaN"), 0);
    EXPECT_EQ(val("inf"), 0);
    EXPECT_EQ(val(std::string(1000000, '0') + "8"), 8);
    EXPECT_EQ(val("0." + std::string(1000000, '0') + "1"), 0);
    EXPECT_EQ(val("1e" + std::string(1000000, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(val("1e-" + std::string(1000000, '9')), 0);
    EXPECT_EQ(val("+1e400"), std::numeric_limits<double>::max());
}

TEST(ToDouble, TakesTheWholeText) {
    EXPECT_EQ(toDouble(" 1.5 "), 1.5);
    EXPECT_EQ(toDouble("-2"), -2);
    EXPECT_EQ(toDouble("+2"), 2);
    EXPECT_EQ(toDouble(".5"), 0.5);
    EXPECT_EQ(toDouble("5."), 5);
    EXPECT_EQ(toDouble("1E-01"), 0.1);
    EXPECT_EQ(toDouble("1d2"), 100);
    EXPECT_EQ(toDouble("-1d+2"), -100);
    EXPECT_EQ(toDouble("0007"), 7);
    EXPECT_EQ(toDouble("+.25E1"), 2.5);
}

TEST(ToDouble, PassesOverGroupingCommasOfTheWholePart) {
    EXPECT_EQ(toDouble("1,234.5"), 1234.5);
    EXPECT_EQ(toDouble("1,234,567"), 1234567);
    EXPECT_RAISES(13, "Type mismatch", toDouble(",5"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1.5,0"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1e1,0"));
    EXPECT_EQ(toDouble(" -1,234 "), -1234);
    EXPECT_EQ(toDouble("+1,000.25e1"), 10002.5);
    EXPECT_EQ(toDouble("12,3,45"), 12345);
    EXPECT_RAISES(13, "Type mismatch", toDouble(","));
    EXPECT_RAISES(13, "Type mismatch", toDouble("-,1"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1,234x"));
}

TEST(ToDouble, RefusesWhatIsNoNumber) {
    for (const char* text : {"", "   ", "abc", "1 2", "12x", "--1", "1e", "NaN", "nan", "inf", "infinity",
                             "-", ".", "\t1", "0x10", "1.2.3"})
        EXPECT_RAISES(13, "Type mismatch", toDouble(text)) << text;
}

TEST(ToDouble, RefusesTabsLineEndsAndNuls) {
    for (const char* text : {"\t", "1\t", "1\r", "\n1", "1\v",
                             "\xA0"
                             "1"})
        EXPECT_RAISES(13, "Type mismatch", toDouble(text)) << text;
    EXPECT_RAISES(13, "Type mismatch", toDouble(std::string_view("1\0", 2)));
    EXPECT_RAISES(13, "Type mismatch", toDouble("- 1"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1 e2"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("1e2.5"));
    EXPECT_RAISES(13, "Type mismatch", toDouble("+-1"));
}

TEST(ToDouble, TellsTheTwoEndsOfTheRangeApartHoweverTheyAreWritten) {
    const std::string zeros(800, '0');
    for (const std::string& large : {"1" + zeros, "-1" + zeros, zeros + "1" + zeros, "+1" + zeros + ".5",
                                     "1" + zeros + "e-300", "0." + zeros + "1e1200", "." + zeros + "1E+1200",
                                     std::string("1e99999999999999999999"), std::string("1d400")})
        EXPECT_RAISES(6, "Overflow", toDouble(large)) << large;
    for (const std::string& tiny : {"0." + zeros + "1", "-." + zeros + "1", zeros + "." + zeros + "1",
                                    "0." + zeros + "1e300", "0." + zeros + "1e+300", "1" + zeros + "e-1200",
                                    std::string("1e-99999999999999999999"), std::string("-1d-400")})
        EXPECT_EQ(toDouble(tiny), 0) << tiny;
    EXPECT_DOUBLE_EQ(toDouble("1" + zeros + "e-750"), 1e50);
    EXPECT_DOUBLE_EQ(toDouble("0." + zeros + "1e750"), 1e-51);
    EXPECT_EQ(toDouble("0e999999"), 0);
    EXPECT_EQ(toDouble("0e99999999999999999999"), 0);
}

TEST(ToDouble, TakesTheLargestAndTheSmallestNumber) {
    EXPECT_EQ(toDouble("1.7976931348623157E+308"), std::numeric_limits<double>::max());
    EXPECT_EQ(toDouble("-1.7976931348623157E+308"), std::numeric_limits<double>::lowest());
    EXPECT_EQ(toDouble("4.9406564584124654E-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_RAISES(6, "Overflow", toDouble("1.8E+308"));
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

TEST(ToSingle, IsRoundedOnce) {
    // Just above the middle between two singles; as a double it is exactly that middle, which rounds to even,
    // to 1.
    EXPECT_EQ(toSingle("1.00000005960464477539062500000001"), std::nextafter(1.0F, 2.0F));
    EXPECT_EQ(toSingle("1.000000059604644775390625"), 1.0F);
    EXPECT_EQ(toSingle(1.0 + 0x1p-24), 1.0F);
}

TEST(ToSingle, HasTheRangeOfASingle) {
    constexpr float largest = std::numeric_limits<float>::max();
    EXPECT_EQ(toSingle("3.4028235E+38"), largest);
    EXPECT_EQ(toSingle(3.4028235E+38), largest);
    EXPECT_EQ(toSingle("-3.402823E+38"), -3.402823E+38F);
    EXPECT_RAISES(6, "Overflow", toSingle("-3.4028236E+38"));
    EXPECT_RAISES(6, "Overflow", toSingle(3.4028236E+38));
    EXPECT_RAISES(6, "Overflow", toSingle(-1e300));
    EXPECT_RAISES(6, "Overflow", toSingle("1e400"));
    EXPECT_RAISES(6, "Overflow", toSingle(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(toSingle("1e-50"), 0.0F);
    EXPECT_EQ(toSingle(1e-50), 0.0F);
    EXPECT_EQ(toSingle("1.4E-45"), std::numeric_limits<float>::denorm_min());
    EXPECT_RAISES(13, "Type mismatch", toSingle(""));
    EXPECT_RAISES(13, "Type mismatch", toSingle("1.5x"));
    EXPECT_EQ(toSingle(" 1,024.5 "), 1024.5F);
}

TEST(ToInteger, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(toInt16("8.25"), 8);
    EXPECT_EQ(toInt16("10.5"), 10);
    EXPECT_EQ(toInt16("11.5"), 12);
    EXPECT_EQ(toInt16("-0.5"), 0);
    EXPECT_EQ(toInt16("-1.5"), -2);
    EXPECT_EQ(toInt32("2147483646.5"), 2147483646);
    EXPECT_EQ(toInt16(0.5), 0);
    EXPECT_EQ(toInt16(1.5), 2);
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(-2.5), -2);
    EXPECT_EQ(toInt32(-3.5), -4);
    EXPECT_EQ(toInt32(" 1,000.5 "), 1000);
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
    EXPECT_RAISES(6, "Overflow", toInt16("-32768.6"));
    EXPECT_EQ(toInt32("2147483647.4"), std::numeric_limits<std::int32_t>::max());
    EXPECT_RAISES(6, "Overflow", toInt32("2147483647.5"));
    EXPECT_EQ(toInt32("-2147483648.5"), std::numeric_limits<std::int32_t>::min());
    EXPECT_RAISES(6, "Overflow", toInt32("-2147483649"));
    EXPECT_RAISES(6, "Overflow", toInt32(1e300));
    EXPECT_RAISES(6, "Overflow", toInt16("1e400"));
    EXPECT_RAISES(13, "Type mismatch", toInt16(""));
    EXPECT_RAISES(13, "Type mismatch", toInt32("7 - lines"));
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
    EXPECT_EQ(roundHalfEven(-2.5), -2);
    EXPECT_EQ(roundHalfEven(-1.5), -2);
    EXPECT_EQ(roundHalfEven(0.25, 1), 0.2);
    EXPECT_EQ(roundHalfEven(0.75, 1), 0.8);
    EXPECT_EQ(roundHalfEven(99.3125, 3), 99.312);
}

TEST(RoundHalfEven, LeavesWhatHasNoFurtherDecimals) {
    const double value = 123456789.12345679;
    EXPECT_EQ(roundHalfEven(value, 22), value);
    EXPECT_EQ(roundHalfEven(9007199254740993.0, 2), 9007199254740993.0);
    EXPECT_EQ(roundHalfEven(-1e300), -1e300);
    EXPECT_EQ(roundHalfEven(std::numeric_limits<double>::infinity(), 2),
              std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(roundHalfEven(std::nan(""), 2)));
    // Scaling up and down again would change some of these values.
    for (double x = 1e-3; x < 1e9; x *= 1.37) EXPECT_EQ(roundHalfEven(x, 22), x);
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
    EXPECT_EQ(singleText(-9999999), "-9999999");
    EXPECT_EQ(singleText(-1e7F), "-1E+07");
    EXPECT_EQ(singleText(1.5e10F), "1.5E+10");
    EXPECT_EQ(singleText(10000001), "1E+07");
}

TEST(SingleText, TurnsToExponentsBelowOneWhenMoreThanSevenDecimalsAreNeeded) {
    EXPECT_EQ(singleText(0.0001F), "0.0001");
    EXPECT_EQ(singleText(0.0000001F), "0.0000001");
    EXPECT_EQ(singleText(0.00000001F), "1E-08");
    EXPECT_EQ(singleText(0.01234567F), "1.234567E-02");
    EXPECT_EQ(singleText(0.1234567F), "0.1234567");
    EXPECT_EQ(singleText(0.012345F), "0.012345");
    EXPECT_EQ(singleText(0.00012345F), "1.2345E-04");
    EXPECT_EQ(singleText(-0.0000001F), "-0.0000001");
    EXPECT_EQ(singleText(-0.00000012F), "-1.2E-07");
    EXPECT_EQ(singleText(std::numeric_limits<float>::min()), "1.175494E-38");
    EXPECT_EQ(singleText(std::numeric_limits<float>::denorm_min()), "1.401298E-45");
}

TEST(SingleText, CarriesIntoANewDigit) {
    EXPECT_EQ(singleText(99.99999F), "99.99999");
    EXPECT_EQ(singleText(0.99999998F), "1");
    EXPECT_EQ(singleText(8388607.5F), "8388608");
    EXPECT_EQ(singleText(9.99999998e-8F), "0.0000001");
}

/// Singles of every size and sign: bit patterns from a generator that produces each one once per period.
template <typename Check>
void forManySingles(Check check) {
    std::uint32_t bits = 1;
    for (int i = 0; i < 100'000; ++i) {
        bits = bits * 1664525U + 1013904223U;
        const float value = std::bit_cast<float>(bits);
        if (std::isfinite(value)) check(value);
    }
}

TEST(SingleText, ReadsBackWithinItsDigits) {
    forManySingles([](float value) {
        const double step = static_cast<double>(std::numeric_limits<float>::denorm_min());
        const double exact = static_cast<double>(value);
        ASSERT_NEAR(static_cast<double>(toSingle(singleText(value))), exact,
                    std::max(std::abs(exact) * 6e-7, step));
    });
}

TEST(SingleText, IsTheSameAfterItWasReadBack) {
    forManySingles([](float value) {
        const std::string text = singleText(value);
        ASSERT_EQ(singleText(toSingle(text)), text);
    });
}

TEST(SingleText, HasAtMostSevenDigitsAndOneOfItsTwoForms) {
    const std::regex forms(
        "-?([1-9][0-9]{0,6}|[0-9]{1,6}\\.[0-9]{0,6}[1-9]|0\\.[0-9]{0,6}[1-9]|"
        "[1-9](\\.[0-9]{0,5}[1-9])?E[+-][0-9]{2})");
    forManySingles([&forms](float value) { ASSERT_TRUE(std::regex_match(singleText(value), forms)); });
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
    EXPECT_EQ(doubleText(0), "0");
    EXPECT_EQ(doubleText(-0.0), "0");
    EXPECT_EQ(doubleText(-12345.678), "-12345.678");
    EXPECT_EQ(doubleText(0.1 + 0.2), "0.3");
    EXPECT_EQ(doubleText(999999999999999.9), "1E+15");
    EXPECT_EQ(doubleText(1234567890123456.0), "1.23456789012346E+15");
    EXPECT_EQ(doubleText(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
    EXPECT_EQ(doubleText(std::numeric_limits<double>::max()), "1.79769313486232E+308");
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
    EXPECT_FALSE(toBool(" FaLsE "));
    EXPECT_FALSE(toBool("-0.0"));
    EXPECT_TRUE(toBool("0.001"));
    EXPECT_TRUE(toBool("1,000"));
    EXPECT_RAISES(13, "Type mismatch", toBool("\tTrue"));
    EXPECT_RAISES(13, "Type mismatch", toBool("True False"));
    EXPECT_RAISES(13, "Type mismatch", toBool("NaN"));
    EXPECT_RAISES(6, "Overflow", toBool("1e400"));
}

TEST(Format00, HasAtLeastTwoDigitsAndRoundsHalvesAway) {
    EXPECT_EQ(format00("7"), "07");
    EXPECT_EQ(format00("23"), "23");
    EXPECT_EQ(format00("123"), "123");
    EXPECT_EQ(format00(0.0), "00");
    EXPECT_EQ(format00(2.5), "03");
    EXPECT_EQ(format00(3.5), "04");
    EXPECT_RAISES(13, "Type mismatch", format00("x"));
    EXPECT_EQ(format00(0.5), "01");
    EXPECT_EQ(format00(9.5), "10");
    EXPECT_EQ(format00(99.5), "100");
    EXPECT_EQ(format00(-2.5), "-03");
    EXPECT_EQ(format00(-0.4), "00");
    EXPECT_EQ(format00(" 3.49 "), "03");
    EXPECT_RAISES(13, "Type mismatch", format00(""));
    EXPECT_RAISES(6, "Overflow", format00(1e15));
    EXPECT_RAISES(6, "Overflow", format00(std::nan("")));
}

TEST(FormatScientific, HasTwoDecimalsAndASignedExponent) {
    EXPECT_EQ(formatScientific(0.5 * 1.94384617178935), "9.72E-01");
    EXPECT_EQ(formatScientific(0), "0.00E+00");
    EXPECT_EQ(formatScientific(-12345), "-1.23E+04");
    EXPECT_EQ(formatScientific(1e100), "1.00E+100");
    EXPECT_EQ(formatScientific(-0.0), "0.00E+00");
    EXPECT_EQ(formatScientific(1), "1.00E+00");
    EXPECT_EQ(formatScientific(0.999999), "1.00E+00");
    EXPECT_EQ(formatScientific(9.999e9), "1.00E+10");
    EXPECT_EQ(formatScientific(0.00001), "1.00E-05");
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
    EXPECT_EQ(idiv(7, -2), -3);
    EXPECT_EQ(idiv(-7, -2), 3);
    EXPECT_EQ(imod(-7, -2), -1);
    EXPECT_EQ(idiv(0, -5), 0);
    EXPECT_EQ(imod(0, -5), 0);
    EXPECT_EQ(idiv(std::numeric_limits<std::int32_t>::min(), 1), std::numeric_limits<std::int32_t>::min());
}

TEST(IntFloor, GoesDown) {
    EXPECT_EQ(intFloor(2.9), 2);
    EXPECT_EQ(intFloor(-2.1), -3);
    EXPECT_EQ(intFloor(-3), -3);
    EXPECT_EQ(intFloor(-0.1), -1);
    EXPECT_EQ(intFloor(1e300), 1e300);
}

}  // namespace
}  // namespace zg
