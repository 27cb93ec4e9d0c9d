#include "graph/frq/FreqBlock.h"

#include <iterator>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "tests/graph/frq/FreqLoad.h"

namespace zg {
namespace {

// Lines of a file of version 2.2 with its roses, by index from 0.
constexpr std::size_t firstRow = 12;
constexpr std::size_t calmLine = 29;
constexpr std::size_t statisticsLine = 30;
constexpr std::size_t blockLines = 22;

class FreqBlock : public FreqLoad {
 protected:
    /// Loads one rose whose first direction row is the line.
    void loadRow(const std::string& line) {
        freqtext::Lines lines = freqtext::file("2.2", 1);
        lines[firstRow] = line;
        load(lines);
    }

    int errorOfLine(std::size_t index, const std::string& line) {
        freqtext::Lines lines = freqtext::file("2.2", 2);
        lines[index] = line;
        return errorOf(lines);
    }

    void loadStatistics(const std::string& line) {
        freqtext::Lines lines = freqtext::file("2.2", 1);
        lines[statisticsLine] = line;
        load(lines);
    }
};

/// The number taken from the start of the text and the rest; "refused" if there is none.
std::string plainPercentOf(std::string_view text) {
    const char* at = text.data();
    double value = -1;
    if (!takePlainPercent(at, text.data() + text.size(), value)) return "refused";
    return doubleText(value) + "|" + std::string(at, text.data() + text.size());
}

TEST(PlainPercent, IsBlanksDigitsAPointAndTheSign) {
    EXPECT_EQ(plainPercentOf("  12.5% 7%"), "12.5| 7%");
    EXPECT_EQ(plainPercentOf("5%"), "5|");
    EXPECT_EQ(plainPercentOf("09%8"), "9|8");
    EXPECT_EQ(plainPercentOf("3.%"), "3|");
    EXPECT_EQ(plainPercentOf(".125%%"), "0.125|%");
    for (const char* text : {"", "  ", "%", ".%", " . %", "5", "5.5", "x%", "5 %", "-5%", "+5%", "1e1%",
                             "1,0%", "1.2.3%", "/%", ":%", "1/%", "1:%"})
        EXPECT_EQ(plainPercentOf(text), "refused") << text;
}

TEST(PlainPercent, HasAtMostFifteenDigits) {
    const std::string digits = "123456789012345";
    for (std::size_t decimals = 0; decimals <= 15; ++decimals) {
        std::string text = digits;
        text.insert(15 - decimals, ".");
        EXPECT_EQ(plainPercentOf(text + "%"), doubleText(toDouble(text)) + "|") << text;
        EXPECT_EQ(plainPercentOf("0" + text + "%"), "refused") << text;
        EXPECT_EQ(plainPercentOf(text + "0%"), "refused") << text;
    }
}

TEST(PlainPercent, EndsWithTheText) {
    EXPECT_EQ(plainPercentOf(std::string_view("55%").substr(0, 1)), "refused");
    EXPECT_EQ(plainPercentOf(std::string_view("5%").substr(0, 1)), "refused");
    EXPECT_EQ(plainPercentOf(std::string_view(" 5%").substr(0, 1)), "refused");
    EXPECT_EQ(plainPercentOf(std::string_view("5.5%").substr(0, 1)), "refused");
    EXPECT_EQ(plainPercentOf(std::string_view("5.5%").substr(0, 2)), "refused");
    EXPECT_EQ(plainPercentOf(std::string_view("5.55%").substr(0, 3)), "refused");
}

TEST_F(FreqBlock, TheTitleIsRaw) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[10] = "  Annual  mean ";
    load(lines);
    EXPECT_EQ(tables.FrqRoseTitle(1), "  Annual  mean ");
    EXPECT_EQ(tables.FrqRoseCaption(1),
              "  Annual  mean : Total Periods = 8760; Valid Periods = 8700 (99.3%); Calm Wind Periods = 392");
}

TEST_F(FreqBlock, LabelsComeFromTheFirstRoseOnly) {
    freqtext::Lines lines = freqtext::file("2.2", 2);
    lines[firstRow + blockLines] = "Nord :" + lines[firstRow].substr(lines[firstRow].find(':') + 1);
    load(lines);
    for (int r = 1; r <= 16; ++r) EXPECT_EQ(tables.FrqDirectionLabel(r), freqtext::directions[r - 1]);
}

TEST_F(FreqBlock, LabelsAreTrimmedAndMayBeAnything) {
    loadRow("   due  north  : 1% 2% 3% 4% 5% 6%");
    EXPECT_EQ(tables.FrqDirectionLabel(1), "due  north");
    loadRow(": 1% 2% 3% 4% 5% 6%");
    EXPECT_EQ(tables.FrqDirectionLabel(1), "");
}

TEST_F(FreqBlock, RowsAreTakenInTheOrderOfTheFile) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    std::swap(lines[firstRow], lines[firstRow + 4]);
    load(lines);
    EXPECT_EQ(tables.FrqDirectionLabel(1), "E");
    EXPECT_EQ(tables.FrqFraction(1, 1), 1.0501 / 100);
}

TEST_F(FreqBlock, ASeventhColumnIsPassedOver) {
    loadRow("N : 1% 2% 3% 4% 5% 6% 7%");
    EXPECT_EQ(tables.FrqFraction(1, 6), 0.06);
    EXPECT_EQ(tables.FrqFraction(2, 0), 0.0);
    loadRow("N : 1% 2% 3% 4% 5% 6% total");
    EXPECT_EQ(tables.FrqFraction(1, 6), 0.06);
}

TEST_F(FreqBlock, TheLastPercentSignMayBeMissing) {
    loadRow("N : 1% 2% 3% 4% 5% 6");
    EXPECT_EQ(tables.FrqFraction(1, 6), 0.06);
}

TEST_F(FreqBlock, ASecondColonEndsTheNumbers) {
    loadRow("N : 1% 2% 3% 4% 5% 6%: 7%");
    EXPECT_EQ(tables.FrqFraction(1, 6), 0.06);
    loadRow("N : 1% 2% 3% 4% 5% 6: 7%");
    EXPECT_EQ(tables.FrqFraction(1, 6), 0.06);
    EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3%: 4% 5% 6%"), 13);
}

TEST_F(FreqBlock, NumbersOfAnyFormAreConverted) {
    loadRow("N : -1.5 % +2% 3.E0% 1e1% .5% 1,000.25%");
    EXPECT_EQ(tables.FrqFraction(1, 1), -0.015);
    EXPECT_EQ(tables.FrqFraction(1, 2), 0.02);
    EXPECT_EQ(tables.FrqFraction(1, 3), 0.03);
    EXPECT_EQ(tables.FrqFraction(1, 4), 0.1);
    EXPECT_EQ(tables.FrqFraction(1, 5), 0.005);
    EXPECT_EQ(tables.FrqFraction(1, 6), 10.0025);
}

TEST_F(FreqBlock, EveryNumberIsTheNearestDouble) {
    const char* const texts[] = {"0",
                                 "0.1",
                                 "7.0",
                                 "12.3456",
                                 "99.9999",
                                 "0.0001",
                                 "3.",
                                 ".125",
                                 "100.0000",
                                 "33.3",
                                 "0.000000000000",
                                 "8.3333",
                                 "00012.50",
                                 "123456789012345",
                                 "1234567890123456789",
                                 "0.1234567890123456789",
                                 "12345678901234567890123456789"};
    std::vector<std::string> numbers(std::begin(texts), std::end(texts));
    for (std::size_t decimals = 1; decimals <= 15; ++decimals)
        numbers.push_back(std::string("123456789012345").insert(15 - decimals, "."));
    for (const std::string& text : numbers) {
        // A blank before one "%" makes the general routine read the whole row.
        for (const char* end : {"%", " %"}) {
            loadRow("N : " + text + "%  " + text + end + text + "%2%3%" + text + "%");
            for (const int c : {1, 2, 3, 6})
                EXPECT_EQ(tables.FrqFraction(1, c), toDouble(text) / 100) << text << end;
            EXPECT_EQ(tables.FrqFraction(1, 4), 0.02);
        }
    }
}

TEST_F(FreqBlock, TheSharesAreWhatTheTextSays) {
    loadRow("N : 2.6612% 12.5% 0.3212% 100% 0.0001% 3.3%");
    EXPECT_DOUBLE_EQ(tables.FrqFraction(1, 1), 0.026612);
    EXPECT_EQ(tables.FrqFraction(1, 2), 0.125);
    EXPECT_DOUBLE_EQ(tables.FrqFraction(1, 3), 0.003212);
    EXPECT_EQ(tables.FrqFraction(1, 4), 1.0);
    EXPECT_DOUBLE_EQ(tables.FrqFraction(1, 5), 0.000001);
    EXPECT_DOUBLE_EQ(tables.FrqFraction(1, 6), 0.033);
}

TEST_F(FreqBlock, ARowWithoutItsColonIsOutOfRange) {
    EXPECT_EQ(errorOfLine(firstRow, "N 1% 2% 3% 4% 5% 6%"), 9);
    EXPECT_EQ(errorOfLine(firstRow, ""), 9);
    EXPECT_EQ(errorOfLine(firstRow, "N :"), 9);
}

TEST_F(FreqBlock, ARowWithTooFewNumbersFails) {
    EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3% 4% 5%"), 13) << "the sixth piece is empty";
    EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3% 4% 5"), 9) << "there is no sixth piece";
    EXPECT_EQ(errorOfLine(firstRow, "N : 1 2 3 4 5 6"), 13);
}

TEST_F(FreqBlock, ACellThatIsNoNumberIsATypeMismatch) {
    for (const char* cell : {"NaN", "nan", "inf", "-", ".", "1.2.3", "1 2", "0x10", "12a", "\t1", "--"})
        EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3% " + std::string(cell) + "% 5% 6%"), 13) << cell;
}

TEST_F(FreqBlock, ANumberBeyondDoublesOverflows) {
    EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3% 1e400% 5% 6%"), 6);
    EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3% -1e400% 5% 6%"), 6);
    EXPECT_EQ(errorOfLine(firstRow, "N : 1% 2% 3% 1e-400% 5% 6%"), 0);
    EXPECT_EQ(tables.FrqFraction(1, 4), 0.0);
}

TEST_F(FreqBlock, CalmStaysText) {
    freqtext::Lines lines = freqtext::file("2.2", 3);
    lines[calmLine] = "Calm Winds:   4.50 % of all: 9%";
    lines[calmLine + blockLines] = "x:abc";
    lines[calmLine + 2 * blockLines] = ": %";
    load(lines);
    EXPECT_EQ(tables.FrqCalmPercent(1), "4.50");
    EXPECT_EQ(tables.FrqCalmPercent(2), "abc");
    EXPECT_EQ(tables.FrqCalmPercent(3), "");
}

TEST_F(FreqBlock, ACalmLineWithoutColonOrNumberIsOutOfRange) {
    EXPECT_EQ(errorOfLine(calmLine, "Calm Winds 4.50%"), 9);
    EXPECT_EQ(errorOfLine(calmLine, "Calm Winds:"), 9);
    EXPECT_EQ(errorOfLine(calmLine, ""), 9);
}

TEST_F(FreqBlock, TheWordsBeforeTheCountsAreFree) {
    loadStatistics("a=1000;=  924  ; c = 3 = 4 ; d = 5");
    EXPECT_EQ(tables.FrqTotalPeriods(1), 1000);
    EXPECT_EQ(tables.FrqValidPeriods(1), 924);
    EXPECT_EQ(tables.FrqCalmPeriods(1), 3);
    EXPECT_EQ(tables.FrqPercentValid(1), 92.4F);
    EXPECT_EQ(tables.FrqRoseCaption(1),
              "Rose 1: Total Periods = 1000; Valid Periods = 924 (92.4%); Calm Wind Periods = 3");
}

TEST_F(FreqBlock, CountsAreSinglesRoundedHalfToEven) {
    loadStatistics("T = 100.5; V = 99.5; C = 16777217");
    EXPECT_EQ(tables.FrqTotalPeriods(1), 100);
    EXPECT_EQ(tables.FrqValidPeriods(1), 100);
    EXPECT_EQ(tables.FrqCalmPeriods(1), 16777216);
    EXPECT_EQ(tables.FrqRoseCaption(1),
              "Rose 1: Total Periods = 100; Valid Periods = 100 (100%); Calm Wind Periods = 16777216");
}

TEST_F(FreqBlock, PercentValidHasOneDecimalAndHalvesGoToEven) {
    loadStatistics("T = 400; V = 369; C = 0");  // 92.25
    EXPECT_EQ(tables.FrqPercentValid(1), 92.2F);
    loadStatistics("T = 400; V = 371; C = 0");  // 92.75
    EXPECT_EQ(tables.FrqPercentValid(1), 92.8F);
    loadStatistics("T = 3; V = 1; C = 0");
    EXPECT_EQ(tables.FrqPercentValid(1), 33.3F);
    EXPECT_NE(tables.FrqRoseCaption(1).find("(33.3%)"), std::string::npos);
    loadStatistics("T = 2000; V = 1849; C = 0");  // 92.45, but less as a single
    EXPECT_EQ(tables.FrqPercentValid(1), 92.4F);
    loadStatistics("T = 1000; V = 0; C = 0");
    EXPECT_NE(tables.FrqRoseCaption(1).find("(0%)"), std::string::npos);
}

TEST_F(FreqBlock, NoPeriodAtAllIsADivisionByZero) {
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 0; V = 5; C = 6"), 11);
    EXPECT_EQ(tables.FrqTotalPeriods(1), 0);
    EXPECT_EQ(tables.FrqValidPeriods(1), 5);
    EXPECT_EQ(tables.FrqCalmPeriods(1), 6);
    EXPECT_EQ(tables.FrqRoseCaption(1), "");
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 0; V = 0; C = 0"), 11);
}

TEST_F(FreqBlock, BrokenStatisticsFail) {
    EXPECT_EQ(errorOfLine(statisticsLine, ""), 9);
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 1; V = 1"), 9);
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 1; V 1; C = 1"), 9);
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 1; V = ; C = 1"), 13);
    EXPECT_EQ(errorOfLine(statisticsLine, "T = many; V = 1; C = 1"), 13);
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 1; V = 1; C = 1e39"), 6) << "beyond singles";
    EXPECT_EQ(errorOfLine(statisticsLine, "T = 1; V = 1; C = 3e9"), 6) << "beyond 32 bits";
}

TEST_F(FreqBlock, ABlockOf20BeginsWithItsTitle) {
    freqtext::Lines lines = freqtext::file("2.0", 1);
    lines[8] = "Spring ";
    load(lines);
    EXPECT_EQ(tables.FrqRoseTitle(1), "Spring ");
    EXPECT_EQ(tables.FrqRoseCaption(1), "Spring ");
    EXPECT_EQ(tables.GraphCaption, "Spring ");
}

}  // namespace
}  // namespace zg
