#include "graph/frq/OpenFreqFile.h"

#include <filesystem>
#include <string>
#include <vector>

#include "tests/graph/frq/FreqLoad.h"

namespace zg {
namespace {

class EveryVersion : public FreqLoad, public ::testing::WithParamInterface<const char*> {
 protected:
    std::string version() const { return GetParam(); }
    bool statistics() const { return version() != "2.0"; }
};

INSTANTIATE_TEST_SUITE_P(Versions, EveryVersion, ::testing::Values("2.0", "2.1", "2.2", "2.3"), versionName);

TEST_P(EveryVersion, FillsTheHeaderValues) {
    EXPECT_EQ(load(freqtext::file(version(), 1)), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqVersion, version());
    EXPECT_EQ(tables.FrqTitle1, "Station A");
    EXPECT_EQ(tables.FrqTitle2, "Site survey 2001");
    EXPECT_EQ(tables.FrqMeasure, "Height = 10.0 m");
    const std::vector<std::string> limits(tables.FrqClassLimit.begin(), tables.FrqClassLimit.end());
    EXPECT_EQ(limits, (std::vector<std::string>{" 0.5", "0.5", "1.8", "3.3", "5.4", "8.5", "10.8"}));
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_EQ(tables.CurrentRose, 1);
}

TEST_P(EveryVersion, MakesThePlotTexts) {
    load(freqtext::file(version(), 2));
    EXPECT_EQ(tables.GraphTitle, "Station A - Site survey 2001");
    EXPECT_EQ(tables.GraphSubTitle, "Height = 10.0 m; [" + tables.FrqPeriodText + "]");
    EXPECT_EQ(tables.GraphCaption, tables.FrqRoseCaption(1));
}

TEST_P(EveryVersion, CountsLinesAndRoses) {
    for (const int roses : {0, 1, 2, 7, 40}) {
        const freqtext::Lines lines = freqtext::file(version(), roses);
        load(lines);
        EXPECT_EQ(tables.FrqLineCount, static_cast<int>(lines.size()) + 1);
        EXPECT_EQ(tables.FrqRoseCount, roses);
        EXPECT_EQ(tables.FrqFraction.rows(), static_cast<int>(lines.size()) + 2);
    }
}

TEST_P(EveryVersion, FillsSeventeenRowsARoseAndUsesSixteen) {
    load(freqtext::file(version(), 3));
    for (int rose = 1; rose <= 3; ++rose) {
        for (int r = 1; r <= 16; ++r) {
            const int row = 17 * rose - 17 + r;
            EXPECT_EQ(tables.FrqFraction(row, 0), 0.0);
            for (int c = 1; c <= 6; ++c)
                EXPECT_EQ(tables.FrqFraction(row, c), std::stod(freqtext::percent(rose, r, c)) / 100)
                    << "rose " << rose << " row " << r << " class " << c;
        }
        for (int c = 0; c <= 6; ++c) EXPECT_EQ(tables.FrqFraction(17 * rose, c), 0.0);
    }
    for (int row = 51; row < tables.FrqFraction.rows(); ++row)
        for (int c = 0; c <= 6; ++c) EXPECT_EQ(tables.FrqFraction(row, c), 0.0);
    EXPECT_EQ(tables.FrqFraction(0, 1), 0.0);
}

TEST_P(EveryVersion, FirstRowOfTheSecondRoseIsRow18) {
    load(freqtext::file(version(), 2));
    EXPECT_EQ(tables.FrqFraction(18, 3), 3.0102 / 100);
    EXPECT_EQ(tables.FrqFraction(17, 3), 0.0);
}

TEST_P(EveryVersion, KeepsIndexZeroOfThePerRoseTablesEmpty) {
    load(freqtext::file(version(), 2));
    EXPECT_EQ(tables.FrqRoseTitle.size(), 3U);
    EXPECT_EQ(tables.FrqRoseCaption.size(), 3U);
    EXPECT_EQ(tables.FrqCalmPercent.size(), 3U);
    EXPECT_EQ(tables.FrqDirectionLabel.size(), 17U);
    EXPECT_EQ(tables.FrqRoseTitle(0) + tables.FrqRoseCaption(0) + tables.FrqCalmPercent(0), "");
    EXPECT_EQ(tables.FrqDirectionLabel(0), "");
}

TEST_P(EveryVersion, HasStatisticsTablesOnlyFrom21On) {
    load(freqtext::file(version(), 2));
    const std::size_t size = statistics() ? 3 : 0;
    EXPECT_EQ(tables.FrqTotalPeriods.size(), size);
    EXPECT_EQ(tables.FrqValidPeriods.size(), size);
    EXPECT_EQ(tables.FrqCalmPeriods.size(), size);
    EXPECT_EQ(tables.FrqPercentValid.size(), size);
    if (!statistics()) return;
    EXPECT_EQ(tables.FrqTotalPeriods(0), 0);
    EXPECT_EQ(tables.FrqTotalPeriods(2), 8760);
    EXPECT_EQ(tables.FrqValidPeriods(2), 8700);
    EXPECT_EQ(tables.FrqCalmPeriods(2), 392);
    EXPECT_EQ(tables.FrqPercentValid(2), 99.3F);
}

TEST_P(EveryVersion, CaptionsTheRose) {
    load(freqtext::file(version(), 2));
    EXPECT_EQ(tables.FrqRoseCaption(2), statistics() ? "Rose 2: Total Periods = 8760; Valid Periods = 8700 "
                                                       "(99.3%); Calm Wind Periods = 392"
                                                     : "Rose 2");
}

TEST_P(EveryVersion, LoadsAHeaderAlone) {
    EXPECT_EQ(load(freqtext::header(version())), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseCount, 0);
    EXPECT_EQ(tables.GraphCaption, "ALL DATA ARE MISSING");
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_EQ(tables.FrqRoseTitle.size(), 1U);
    EXPECT_EQ(tables.FrqDirectionLabel.size(), 17U);
    EXPECT_EQ(tables.FrqDirectionLabel(1), "");
}

TEST_P(EveryVersion, ReadsEveryLineEnd) {
    const freqtext::Lines lines = freqtext::file(version(), 2);
    for (const char* end : {"\r\n", "\n", "\r"}) {
        tables = ModPolarGraph();
        EXPECT_EQ(loadBytes(freqtext::bytes(lines, end)), FreqFileOutcome::Loaded);
        EXPECT_EQ(tables.FrqLineCount, static_cast<int>(lines.size()) + 1);
        EXPECT_EQ(tables.FrqRoseTitle(2), "Rose 2");
        EXPECT_EQ(tables.FrqFraction(33, 6), 6.1602 / 100);
    }
}

TEST_P(EveryVersion, TakesALastLineWithoutItsEnd) {
    std::string bytes = freqtext::bytes(freqtext::file(version(), 1));
    // Version 2.0 ends with an empty line; without its line end there is no such line.
    if (!statistics()) bytes.insert(bytes.size() - 2, "x");
    bytes.resize(bytes.size() - 2);
    EXPECT_EQ(loadBytes(bytes), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseCount, 1);
}

TEST_P(EveryVersion, LeavesOneExtraLineUnread) {
    freqtext::Lines lines = freqtext::file(version(), 2);
    lines.emplace_back("no line of any rose");
    EXPECT_EQ(load(lines), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseCount, 2);
    EXPECT_EQ(tables.FrqLineCount, static_cast<int>(lines.size()) + 1);
}

TEST_P(EveryVersion, AcceptsTheFirstLineWithBlanksAround) {
    freqtext::Lines lines = freqtext::file(version(), 1);
    lines[0] = "   " + lines[0] + "  ";
    EXPECT_EQ(load(lines), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqVersion, version());
}

TEST_P(EveryVersion, ForgetsTheChoiceOfUnit) {
    tables.ClassesFromFile = false;
    tables.ClassesInKnots = true;
    tables.KnotTableReady = true;
    tables.CurrentRose = 5;
    load(freqtext::file(version(), 1));
    EXPECT_TRUE(tables.ClassesFromFile);
    EXPECT_FALSE(tables.ClassesInKnots);
    EXPECT_FALSE(tables.KnotTableReady);
    EXPECT_EQ(tables.CurrentRose, 1);
}

using OpenFreqFile = FreqLoad;

TEST_F(OpenFreqFile, TitleIsTheSecondOneWhereTheFirstIsEmpty) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[4] = "   ";
    load(lines);
    EXPECT_EQ(tables.FrqTitle1, "");
    EXPECT_EQ(tables.GraphTitle, "Site survey 2001");
    lines[5] = "";
    load(lines);
    EXPECT_EQ(tables.GraphTitle, "");
}

TEST_F(OpenFreqFile, TitleKeepsItsDashWhereTheSecondIsEmpty) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[5] = "";
    load(lines);
    EXPECT_EQ(tables.GraphTitle, "Station A - ");
}

TEST_F(OpenFreqFile, AFileWithoutStatisticsRemovesThoseOfTheFileBefore) {
    load(freqtext::file("2.3", 4));
    load(freqtext::file("2.0", 2));
    EXPECT_EQ(tables.FrqVersion, "2.0");
    EXPECT_EQ(tables.FrqTotalPeriods.size(), 0U);
    EXPECT_EQ(tables.FrqPercentValid.size(), 0U);
    EXPECT_EQ(tables.FrqRoseTitle.size(), 3U);
    EXPECT_EQ(tables.FrqFraction(35, 1), 0.0);
}

TEST_F(OpenFreqFile, ASecondLoadReplacesAllTables) {
    load(freqtext::file("2.2", 3));
    tables.CurrentRose = 3;
    tables.GraphCaption = "edited";
    load(freqtext::file("2.1", 1));
    EXPECT_EQ(tables.FrqRoseCount, 1);
    EXPECT_EQ(tables.FrqRoseTitle.size(), 2U);
    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.GraphCaption, tables.FrqRoseCaption(1));
    EXPECT_EQ(tables.FrqFraction(18, 1), 0.0);
}

TEST_F(OpenFreqFile, KeepsBytesOfTitlesAsTheyStand) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[4] = "Sao Jos\xC3\xA9";
    lines[5] = "Zone \xE9t\xE9";
    lines[10] = "\xC3\x89t\xC3\xA9 ";
    load(lines);
    EXPECT_EQ(tables.GraphTitle, "Sao Jos\xC3\xA9 - Zone \xE9t\xE9");
    EXPECT_EQ(tables.FrqRoseTitle(1), "\xC3\x89t\xC3\xA9 ");
}

TEST_F(OpenFreqFile, ReadsVeryLongLines) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[2] = std::string(3'000'000, 'c');
    lines[4] = std::string(200'000, 't');
    lines[11] = std::string(70'000, ' ') + "headings";
    load(lines);
    EXPECT_EQ(tables.FrqTitle1, lines[4]);
    EXPECT_EQ(tables.FrqFraction(16, 6), 6.1601 / 100);
}

TEST_F(OpenFreqFile, LoadsTheLargestFile) {
    freqtext::Lines lines = freqtext::file("2.0", 1559);
    lines.resize(lines.size() + 9);  // one more would count as a further rose
    EXPECT_EQ(load(lines), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseCount, 1559);
    EXPECT_EQ(tables.FrqRoseTitle(1559), "Rose 1559");
    EXPECT_EQ(tables.FrqFraction(17 * 1559 - 1, 6), 6.1659 / 100);
}

TEST_F(OpenFreqFile, LoadsFromAnySourceOfLines) {
    const std::string bytes = freqtext::bytes(freqtext::file("2.3", 2));
    int opened = 0;
    const FreqSource source = [&] {
        ++opened;
        return LineReader::ofText(bytes);
    };
    EXPECT_EQ(loadFreqLines(source, "shown", tables, host), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseTitle(2), "Rose 2");
    EXPECT_EQ(opened, 3);
}

class RefusedFile : public FreqLoad, public ::testing::WithParamInterface<std::string> {};

INSTANTIATE_TEST_SUITE_P(FirstLines, RefusedFile,
                         ::testing::Values("", "WIND.FRQ", "WIND.FRQ 2.2 Zephyrgraph FRQ File Format",
                                           "WIND.FRQ        2.4             Zephyrgraph FRQ File Format",
                                           "WIND.FRQ        2.2            Zephyrgraph FRQ File Format",
                                           "WIND.FRQ         2.2             Zephyrgraph FRQ File Format",
                                           "wind.frq        2.2             zephyrgraph frq file format",
                                           "\tWIND.FRQ        2.2             Zephyrgraph FRQ File Format",
                                           "\xEF\xBB\xBFWIND.FRQ        2.2             "
                                           "Zephyrgraph FRQ File Format",
                                           "WIND.FRQ        2.2             Zephyrgraph FRQ File Format x"));

TEST_P(RefusedFile, IsToldAndLeavesTheTables) {
    load(freqtext::file("2.2", 2));
    tables.CurrentRose = 2;
    tables.KnotTableReady = true;
    const std::string path = directory.write("other.frq", GetParam() + "\r\n6\r\n");

    host.boxAnswers = {BoxAnswer::Ok};
    EXPECT_EQ(loadFreqFile(path, tables, host), FreqFileOutcome::Refused);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "The FRQ File " + path + " is not in the correct data format.");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::None);
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::Ok);

    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.FrqVersion, "2.2");
    EXPECT_EQ(tables.FrqRoseCount, 2);
    EXPECT_EQ(tables.FrqRoseTitle(2), "Rose 2");
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_TRUE(tables.KnotTableReady);
}

TEST_F(OpenFreqFile, ARefusedFileBeforeAnyLoadLeavesNothingLoaded) {
    host.boxAnswers = {BoxAnswer::Ok};
    EXPECT_EQ(load({"no wind"}), FreqFileOutcome::Refused);
    EXPECT_FALSE(tables.FrqLoaded);
    EXPECT_EQ(tables.FrqVersion, "");
    EXPECT_EQ(tables.CurrentRose, 1);
}

/// How many of this process's open files are that file.
int openHandlesOn(const std::string& path) {
    int count = 0;
    std::error_code closedMeanwhile;
    for (const auto& handle : std::filesystem::directory_iterator("/proc/self/fd"))
        count += std::filesystem::read_symlink(handle.path(), closedMeanwhile).string() == path;
    return count;
}

TEST_F(OpenFreqFile, ARefusedFileStaysOpenAndALoadedOneDoesNot) {
    host.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    const std::string path = std::filesystem::canonical(directory.write("wind.frq", "no wind\r\n")).string();
    EXPECT_EQ(loadFreqFile(path, tables, host), FreqFileOutcome::Refused);
    EXPECT_EQ(openHandlesOn(path), 1);
    EXPECT_EQ(loadFreqFile(path, tables, host), FreqFileOutcome::Refused);
    EXPECT_EQ(openHandlesOn(path), 2);
    directory.write("wind.frq", freqtext::bytes(freqtext::file("2.2", 1)));
    EXPECT_EQ(loadFreqFile(path, tables, host), FreqFileOutcome::Loaded);
    EXPECT_EQ(openHandlesOn(path), 2);
}

TEST_F(OpenFreqFile, RefusesAFileOfOneEndlessLine) {
    host.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    EXPECT_EQ(loadBytes(std::string(20'000'000, 'w')), FreqFileOutcome::Refused);
    EXPECT_EQ(loadBytes(std::string(20'000'000, ' ')), FreqFileOutcome::Refused);
}

TEST_F(OpenFreqFile, FindsTheLiteralAmongEndlessBlanks) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[0] = std::string(1'000'000, ' ') + lines[0] + std::string(1'000'000, ' ');
    EXPECT_EQ(load(lines), FreqFileOutcome::Loaded);
}

TEST_F(OpenFreqFile, AFileThatWasRefusedLoadsOnceItIsMended) {
    host.boxAnswers = {BoxAnswer::Ok};
    EXPECT_EQ(load({"no wind"}), FreqFileOutcome::Refused);
    EXPECT_EQ(load(freqtext::file("2.2", 1)), FreqFileOutcome::Loaded);
}

}  // namespace
}  // namespace zg
