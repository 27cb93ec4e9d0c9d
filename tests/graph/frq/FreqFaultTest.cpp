#include "graph/frq/FreqFault.h"

#include "tests/graph/frq/FreqLoad.h"

namespace zg {
namespace {

class FreqFault : public FreqLoad {
 protected:
    /// What the error of a load says about its place.
    std::string placeOf(const freqtext::Lines& lines) {
        try {
            load(lines);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.file, directory.file("wind.frq"));
            return error.where;
        }
        return "no error";
    }
};

struct Fault {
    const char* version;
    std::size_t line;  ///< from 1
    const char* text;
    const char* place;
};

class FreqFaultInLine : public FreqFault, public ::testing::WithParamInterface<Fault> {};

INSTANTIATE_TEST_SUITE_P(
    Lines, FreqFaultInLine,
    ::testing::Values(
        Fault{"2.0", 2, " six ", "2: the number of header lines, up to 32767, found \"six\""},
        Fault{"2.0", 2, "", "2: the number of header lines, up to 32767, found an empty line"},
        Fault{"2.1", 2, "200", "2: 200 header lines, found 50"},
        Fault{"2.2", 2, "40000 - comments",
              "2: the number of comment lines, up to 32767, found \"40000 - comments\""},
        Fault{"2.2", 2, "100 - comments", "54: 100 comment lines, found 51"},
        Fault{"2.3", 4, "five", "4: the number of header lines, up to 32767, found \"five\""},
        Fault{"2.3", 4, "50 - lines", "54: 50 header lines, found 49"},
        Fault{"2.2", 7, "Height", "7: a key, a colon and a value, found \"Height\""},
        Fault{"2.1", 7, "0.5,0.5", "7: a text, a colon and class limits, found \"0.5,0.5\""},
        Fault{"2.0", 8, "2001 1 1 0 2001 12 31", "8: eight values of the period, found seven"},
        Fault{"2.2", 9, "2001 1 1 0 2001 12 31 24", "9: ten values of the period, found eight"},
        Fault{"2.3", 9, "2001 1 1 1 0 2001 12 31 24 0", "9: eleven values of the period, found ten"},
        Fault{"2.3", 9, " ", "9: eleven values of the period, found none"},
        Fault{"2.2", 9, "2001 2 30 1 0 2001 12 31 24 0",
              "9: a period that exists, found \"2001 2 30 1 0 2001 12 31 24 0\""},
        Fault{"2.2", 13, "N  1% 2% 3% 4% 5% 6%",
              "13: a direction, a colon and six percentages, found \"N  1% 2% 3% 4% 5% 6%\""},
        Fault{"2.2", 13, "", "13: a direction, a colon and six percentages, found an empty line"},
        Fault{"2.2", 14, "NNE: 1.00% 2.00% 3.00% 4.00% 5.00%", "14: six percentages, found five"},
        Fault{"2.2", 14, "NNE: 1.00% 2.00% 3.00% 4.00% 5.00% x", "14: six percentages, found five"},
        Fault{"2.2", 14, "NNE: 5.4% 2.3% 0.5% 0.0% 5", "14: six percentages, found five"},
        Fault{"2.2", 14, "NNE: 5.4% 2.3% 0.5% 0.0% ", "14: six percentages, found four"},
        Fault{"2.2", 36, "NNE: 1% : 3% 4% 5% 6%", "36: six percentages, found one"},
        Fault{"2.2", 28, "NNW: ", "28: six percentages, found none"},
        Fault{"2.2", 15, "NE: 1% 2% 3% four% 5% 6%", "15: six percentages, found \"four%\" among them"},
        Fault{"2.2", 15, "NE: 1E999% 2% 3% 4% 5% 6%", "15: six percentages, found \"1E999%\" among them"},
        Fault{"2.2", 30, "Calm Winds 4.50%",
              "30: a text, a colon and the percentage of calms, found \"Calm Winds 4.50%\""},
        Fault{"2.2", 31, "Total = 10; Valid = 9",
              "31: the numbers of total, valid and calm periods, found \"Total = 10; Valid = 9\""},
        Fault{"2.2", 31, "T = 10; V = 9; C = none",
              "31: the numbers of total, valid and calm periods, found \"T = 10; V = 9; C = none\""},
        Fault{"2.2", 53, "T = 0; V = 9; C = 1", "53: total periods above 0, found \"T = 0; V = 9; C = 1\""}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

TEST_P(FreqFaultInLine, SaysWhatIsExpectedAndWhatIsFound) {
    const Fault& fault = GetParam();
    freqtext::Lines lines = freqtext::file(fault.version, 2);
    lines.at(fault.line - 1) = fault.text;
    EXPECT_EQ(placeOf(lines), fault.place);
}

TEST_F(FreqFault, OfAFileThatEndsEarlySaysWhatIsMissing) {
    const auto placeAfter = [this](std::size_t count) {
        freqtext::Lines lines = freqtext::file("2.2", 1);
        lines.resize(count);
        return placeOf(lines);
    };
    EXPECT_EQ(placeAfter(0), "1: the version of the format, found the end of the file");
    EXPECT_EQ(placeAfter(1), "2: the number of comment lines, up to 32767, found the end of the file");
    EXPECT_EQ(placeAfter(2), "3: 1 comment line, found none");
    EXPECT_EQ(placeAfter(3), "4: the number of header lines, up to 32767, found the end of the file");
    EXPECT_EQ(placeAfter(8), "9: 5 header lines, found four");
    EXPECT_EQ(placeAfter(30), "31: the total, valid and calm periods, found the end of the file");
}

TEST_F(FreqFault, InsideARoseOfTheEndSaysWhatIsMissing) {
    const auto placeAfter = [this](std::size_t count) {
        freqtext::Lines lines = freqtext::file("2.0", 2);
        lines.resize(8 + 21 + count);
        return placeOf(lines);
    };
    EXPECT_EQ(placeAfter(11), "41: the row of a direction, found the end of the file");
    EXPECT_EQ(placeAfter(18), "48: the line after the directions, found the end of the file");
    EXPECT_EQ(placeAfter(19), "49: a text, a colon and the percentage of calms, found the end of the file");
    EXPECT_EQ(placeAfter(20), "50: the line after a rose, found the end of the file");
}

TEST_F(FreqFault, OfTooManyLinesSaysHowManyThereAre) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines.resize(40'000);
    EXPECT_EQ(placeOf(lines), "32767: at most 32766 lines, found 40000");
}

TEST(FreqQuote, IsOneShortLine) {
    EXPECT_EQ(freqQuote("  a b  "), "\"a b\"");
    EXPECT_EQ(freqQuote("   "), "an empty line");
    EXPECT_EQ(freqQuote(""), "an empty line");
    EXPECT_EQ(freqQuote(std::string_view("a\tb\0c", 5)), "\"a b c\"");
    EXPECT_EQ(freqQuote(std::string(60, 'x')), "\"" + std::string(60, 'x') + "\"");
    EXPECT_EQ(freqQuote(std::string(61, 'x')), "\"" + std::string(60, 'x') + "...\"");
    std::string umlauts;
    while (umlauts.size() < 80) umlauts += "\xC3\xA4";
    EXPECT_EQ(freqQuote("x" + umlauts), "\"x" + umlauts.substr(0, 58) + "...\"") << "no half letter";
    EXPECT_EQ(freqQuote("Z\xFCrich"), "\"Z\xC3\xBCrich\"") << "the name of the file is UTF-8 too";
    EXPECT_EQ(freqQuote(std::string(61, '\xE4')), "\"" + umlauts.substr(0, 60) + "...\"");
}

TEST(FreqNumber, IsAWordUpToTwelve) {
    EXPECT_EQ(freqNumber(0), "none");
    EXPECT_EQ(freqNumber(5), "five");
    EXPECT_EQ(freqNumber(12), "twelve");
    EXPECT_EQ(freqNumber(13), "13");
}

}  // namespace
}  // namespace zg
