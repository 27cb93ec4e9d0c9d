// The delivered sample files, as loaded.

#include <set>
#include <string>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "graph/frq/ClassLimits.h"
#include "graph/frq/FreqBlock.h"
#include "tests/graph/frq/FreqLoad.h"

namespace zg {
namespace {

struct Sample {
    const char* name;
    const char* version;
    int roses;
};

void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.name; }

constexpr Sample samples[] = {
    {"LOVETT_1988", "2.3", 9},       {"trade_wind_coast", "2.0", 5}, {"mountain_valley", "2.1", 3},
    {"continental_plain", "2.2", 5}, {"island_station", "2.2", 1},   {"north_sea", "2.3", 25},
};

std::string sampleDirectory() { return std::string(ZG_SOURCE_DIR) + "/data/samples/"; }

class SampleFile : public FreqLoad, public ::testing::WithParamInterface<Sample> {
 protected:
    void SetUp() override {
        const std::string path = sampleDirectory() + GetParam().name + ".frq";
        ASSERT_EQ(loadFreqFile(path, tables, host), FreqFileOutcome::Loaded);
    }

    /// Percent total of a rose: all directions, classes and calm.
    double sumOf(int rose) const {
        double sum = toDouble(tables.FrqCalmPercent(rose));
        for (int direction = 1; direction <= 16; ++direction)
            for (int c = 1; c <= 6; ++c) sum += 100 * tables.FrqFraction(fractionRow(rose, direction), c);
        return sum;
    }
};

INSTANTIATE_TEST_SUITE_P(All, SampleFile, ::testing::ValuesIn(samples),
                         [](const auto& sample) { return std::string(sample.param.name); });

TEST_P(SampleFile, HasItsVersionAndRoses) {
    EXPECT_EQ(tables.FrqVersion, GetParam().version);
    EXPECT_EQ(tables.FrqRoseCount, GetParam().roses);
}

TEST_P(SampleFile, SumsToHundredPercent) {
    // The percentages in this file were rounded individually.
    const double tolerance = std::string(GetParam().name) == "LOVETT_1988" ? 0.01 : 1e-9;
    for (int rose = 1; rose <= tables.FrqRoseCount; ++rose)
        EXPECT_NEAR(sumOf(rose), 100.0, tolerance) << rose;
}

TEST_P(SampleFile, NamesTheSixteenDirections) {
    for (int r = 1; r <= 16; ++r) EXPECT_EQ(tables.FrqDirectionLabel(r), freqtext::directions[r - 1]);
}

TEST_P(SampleFile, TitlesEachRoseOnce) {
    std::set<std::string> titles;
    for (int rose = 1; rose <= tables.FrqRoseCount; ++rose) titles.insert(tables.FrqRoseTitle(rose));
    EXPECT_EQ(titles.size(), static_cast<std::size_t>(tables.FrqRoseCount));
    EXPECT_EQ(titles.count(""), 0U);
}

TEST_P(SampleFile, HasLimitsInKnots) {
    EXPECT_EQ(tables.FrqClassLimit.size(), 7U);
    buildKnotTable(tables);
    EXPECT_EQ(tables.KnotClassLimit(0), "9.72E-01");
}

using Samples = FreqLoad;

TEST_F(Samples, AreAllTested) {
    EXPECT_EQ(filesMatching(sampleDirectory() + "*.frq").size(), std::size(samples));
}

TEST_F(Samples, RealFileHasItsValues) {
    loadFreqFile(sampleDirectory() + "LOVETT_1988.frq", tables, host);
    EXPECT_EQ(tables.FrqLineCount, 208);
    EXPECT_EQ(tables.GraphTitle, "Lovett, New York - Hourly surface winds");
    EXPECT_EQ(tables.GraphSubTitle,
              "Height = 50.0 m; [Jan 1, 1988 - 12:00:00 AM to Jan 1, 1989 - 12:00:00 AM (UTC-0500)]");
    EXPECT_EQ(tables.GraphCaption,
              "All Periods: Total Periods = 8784; Valid Periods = 8718 (99.2%); Calm Wind Periods = 413");
    EXPECT_EQ(tables.FrqCalmPercent(1), "4.74");
    EXPECT_EQ(tables.FrqFraction(1, 1), 2.6612 / 100);
    EXPECT_EQ(tables.FrqFraction(14, 3), 5.0470 / 100);
    EXPECT_EQ(tables.FrqRoseTitle(2), "Winter");
    EXPECT_EQ(tables.FrqFraction(18, 1), 3.0317 / 100);
    EXPECT_EQ(tables.FrqTotalPeriods(2), 2184);
    EXPECT_EQ(tables.FrqCalmPercent(9), "3.64");
    EXPECT_EQ(tables.FrqFraction(152, 4), 0.3643 / 100);
    EXPECT_EQ(tables.FrqValidPeriods(9), 2196);
    EXPECT_EQ(tables.FrqCalmPeriods(9), 80);
}

TEST_F(Samples, TitleAloneWhereTheFirstIsEmpty) {
    loadFreqFile(sampleDirectory() + "island_station.frq", tables, host);
    EXPECT_EQ(tables.GraphTitle, "Island station without a first title");
    EXPECT_EQ(tables.FrqPeriodText, "Jan 1, 2004 - 12:30:00 AM to Dec 31, 2004 - 11:30:00 PM");
}

TEST_F(Samples, HeaderAloneLoadsWithoutRoses) {
    loadFreqFile(std::string(ZG_SOURCE_DIR) + "/tests/graph/frq/data/header_only.frq", tables, host);
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_EQ(tables.FrqRoseCount, 0);
    EXPECT_EQ(tables.GraphTitle, "Silent Station - All data are missing");
    EXPECT_EQ(tables.GraphCaption, "ALL DATA ARE MISSING");
}

}  // namespace
}  // namespace zg
