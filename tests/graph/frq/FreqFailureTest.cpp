// The contents of the tables after a load that ended with a run-time error.

#include <filesystem>
#include <string>

#include "tests/graph/frq/FreqLoad.h"

namespace zg {
namespace {

class FreqFailure : public FreqLoad {
 protected:
    /// An older file is loaded, of another shape than the one that is to fail.
    void SetUp() override {
        load(freqtext::file("2.1", 1));
        tables.CurrentRose = 9;
        tables.ClassesFromFile = false;
        tables.KnotTableReady = true;
    }

    void expectOldTables() const {
        EXPECT_EQ(tables.FrqLineCount, 31);
        EXPECT_EQ(tables.FrqFraction.rows(), 32);
        EXPECT_EQ(tables.FrqFraction(1, 1), 1.0101 / 100);
    }
};

TEST_F(FreqFailure, AMissingFileOnlyMovesTheRose) {
    const auto errorOfPath = [this](const std::string& path) {
        try {
            loadFreqFile(path, tables, host);
        } catch (const RunTimeError& error) {
            return error.number;
        }
        return 0;
    };
    EXPECT_EQ(errorOfPath(directory.file("none.frq")), 53);
    EXPECT_EQ(errorOfPath(directory.path()), 75);
    EXPECT_EQ(errorOfPath(""), 53);
    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.FrqVersion, "2.1");
    EXPECT_TRUE(tables.KnotTableReady);
    expectOldTables();
}

TEST_F(FreqFailure, ManyRefusedFilesLeaveHandlesForThoseAfterThem) {
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const std::string refused = directory.write("x.frq", "no\n");
    const auto before = openFiles();
    host.boxAnswers.assign(1100, BoxAnswer::Ok);
    for (int i = 0; i < 1100; ++i)
        ASSERT_EQ(loadFreqFile(refused, tables, host), FreqFileOutcome::Refused) << i;
    EXPECT_LE(openFiles(), before + 16);
    EXPECT_EQ(load(freqtext::file("2.1", 1)), FreqFileOutcome::Loaded);
}

TEST_F(FreqFailure, AnEmptyFileEndsBeforeItsFirstLine) {
    EXPECT_EQ(errorOf({}), 62);
    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.FrqVersion, "2.1");
    expectOldTables();
}

TEST_F(FreqFailure, InTheCountsLeavesTheVersionOnly) {
    freqtext::Lines lines = freqtext::file("2.2", 2);
    lines[3] = "five - Header lines";
    EXPECT_EQ(errorOf(lines), 13);
    EXPECT_EQ(tables.FrqVersion, "2.2");
    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.FrqRoseCount, 1);
    EXPECT_EQ(tables.FrqTitle1, "Station A");
    expectOldTables();
}

TEST_F(FreqFailure, OfTooManyLinesLeavesTheOldLineCount) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines.resize(32'767);
    EXPECT_EQ(errorOf(lines), 6);
    EXPECT_EQ(tables.FrqVersion, "2.2");
    expectOldTables();
}

TEST_F(FreqFailure, InTheRosesOfAFileWithAllLinesComesAfterTheSizes) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines.resize(32'766);
    EXPECT_EQ(errorOf(lines), 9) << "an empty line is no direction";
    EXPECT_EQ(tables.FrqLineCount, 32'767);
    EXPECT_EQ(tables.FrqRoseCount, 1489);
    EXPECT_EQ(tables.FrqFraction(1, 1), 1.0101 / 100);
}

TEST_F(FreqFailure, OfAHeaderLargerThanTheFileStopsAtTheRoseTables) {
    freqtext::Lines lines = freqtext::file("2.1", 2);
    lines[1] = "100";
    EXPECT_EQ(errorOf(lines), 9);
    EXPECT_EQ(tables.FrqLineCount, 53);
    EXPECT_EQ(tables.FrqFraction.rows(), 54);
    EXPECT_EQ(tables.FrqFraction(1, 1), 0.0);
    EXPECT_EQ(tables.FrqRoseCount, -2);
    EXPECT_EQ(tables.FrqRoseTitle.size(), 2U);
    EXPECT_EQ(tables.FrqTotalPeriods.size(), 2U);
    EXPECT_TRUE(tables.KnotTableReady);
}

TEST_F(FreqFailure, InTheHeaderFieldsKeepsWhatWasReadAndTheUnitFlags) {
    freqtext::Lines lines = freqtext::file("2.3", 3);
    lines[4] = "New title";
    lines[6] = "Height";
    EXPECT_EQ(errorOf(lines), 9);
    EXPECT_EQ(tables.FrqVersion, "2.3");
    EXPECT_EQ(tables.FrqLineCount, 76);
    EXPECT_EQ(tables.FrqRoseCount, 3);
    EXPECT_EQ(tables.FrqFraction.rows(), 77);
    EXPECT_EQ(tables.FrqRoseTitle.size(), 4U);
    EXPECT_EQ(tables.FrqRoseTitle(1), "");
    EXPECT_EQ(tables.FrqTitle1, "New title");
    EXPECT_EQ(tables.FrqMeasure, "Height = 10.0 m");
    EXPECT_EQ(tables.GraphTitle, "Station A - Site survey 2001");
    EXPECT_FALSE(tables.ClassesFromFile);
    EXPECT_TRUE(tables.KnotTableReady);
}

TEST_F(FreqFailure, InThePeriodKeepsTheClassLimits) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[7] = "Classes: 1,2,3";
    lines[8] = "2001 2 30 1 0 2001 12 31 24 0";
    const std::string oldPeriod = tables.FrqPeriodText;
    EXPECT_EQ(errorOf(lines), 13);
    EXPECT_EQ(tables.FrqClassLimit.size(), 3U);
    EXPECT_EQ(tables.FrqPeriodText, oldPeriod);
    EXPECT_TRUE(tables.KnotTableReady);
}

TEST_F(FreqFailure, InARowKeepsTheRowsAndCellsBefore) {
    freqtext::Lines lines = freqtext::file("2.2", 2);
    lines[12 + 22 + 4] = "E: 1% 2% 3% four% 5% 6%";
    EXPECT_EQ(errorOf(lines), 13);
    EXPECT_EQ(tables.FrqFraction(17 + 4, 6), 6.0402 / 100);
    EXPECT_EQ(tables.FrqFraction(17 + 5, 3), 0.03);
    EXPECT_EQ(tables.FrqFraction(17 + 5, 4), 0.0);
    EXPECT_EQ(tables.FrqFraction(17 + 5, 5), 0.0);
    EXPECT_EQ(tables.FrqFraction(17 + 6, 1), 0.0);
    EXPECT_EQ(tables.FrqRoseTitle(2), "Rose 2");
    EXPECT_EQ(tables.FrqCalmPercent(1), "4.10");
    EXPECT_EQ(tables.FrqCalmPercent(2), "");
    EXPECT_EQ(tables.FrqRoseCaption(2), "");
    EXPECT_NE(tables.FrqRoseCaption(1), "");
    EXPECT_TRUE(tables.ClassesFromFile);
    EXPECT_FALSE(tables.KnotTableReady);
}

TEST_F(FreqFailure, InTheFirstRoseKeepsTheLabelOfTheFailingRow) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[13] = "failing: %";
    EXPECT_EQ(errorOf(lines), 13);
    EXPECT_EQ(tables.FrqDirectionLabel(1), "N");
    EXPECT_EQ(tables.FrqDirectionLabel(2), "failing");
    EXPECT_EQ(tables.FrqDirectionLabel(3), "");
}

TEST_F(FreqFailure, InTheStatisticsKeepsTheCountsBefore) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[30] = "T = 10; V = 9; C = none";
    EXPECT_EQ(errorOf(lines), 13);
    EXPECT_EQ(tables.FrqTotalPeriods(1), 10);
    EXPECT_EQ(tables.FrqValidPeriods(1), 9);
    EXPECT_EQ(tables.FrqCalmPeriods(1), 0);
    EXPECT_EQ(tables.FrqPercentValid(1), 0.0F);
    EXPECT_EQ(tables.FrqCalmPercent(1), "4.10");
}

TEST_F(FreqFailure, LeavesThePlotTextsAndTheLoadedFlag) {
    tables.GraphTitle = "old title";
    tables.GraphCaption = "old caption";
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[30] = "T = 0; V = 9; C = 1";
    EXPECT_EQ(errorOf(lines), 11);
    EXPECT_EQ(tables.GraphTitle, "old title");
    EXPECT_EQ(tables.GraphCaption, "old caption");
    EXPECT_TRUE(tables.FrqLoaded);

    tables = ModPolarGraph();
    EXPECT_EQ(errorOf(lines), 11);
    EXPECT_FALSE(tables.FrqLoaded);
}

class LastLineMissing : public FreqLoad, public ::testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Versions, LastLineMissing, ::testing::Values("2.0", "2.1", "2.2", "2.3"),
                         versionName);

TEST_P(LastLineMissing, CountsTheRoseAndEndsTheFileInIt) {
    freqtext::Lines lines = freqtext::file(GetParam(), 2);
    lines.pop_back();
    EXPECT_EQ(errorOf(lines), 62);
    EXPECT_EQ(tables.FrqRoseCount, 2);
    EXPECT_EQ(tables.FrqFraction(33, 6), 6.1602 / 100);
    EXPECT_EQ(tables.FrqCalmPercent(2), "4.20");
    EXPECT_EQ(tables.FrqRoseCaption(2), "");
    EXPECT_FALSE(tables.FrqLoaded);
}

}  // namespace
}  // namespace zg
