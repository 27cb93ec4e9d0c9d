#include "export/TablesJson.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "graph/frq/OpenFreqFile.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

nlohmann::ordered_json tablesOf(const std::string& sample) {
    ModPolarGraph tables;
    TestHost host;
    EXPECT_EQ(loadFreqFile(ZG_SOURCE_DIR "/data/samples/" + sample, tables, host), FreqFileOutcome::Loaded);
    return nlohmann::ordered_json::parse(tablesAsJson(tables));
}

TEST(TablesJson, HoldsEveryTableUnderItsName) {
    const auto json = tablesOf("LOVETT_1988.frq");
    std::vector<std::string> names;
    for (const auto& item : json.items()) names.push_back(item.key());
    EXPECT_EQ(names, (std::vector<std::string>{
                         "FrqVersion",        "FrqLineCount",    "FrqRoseCount",    "FrqFraction",
                         "FrqDirectionLabel", "FrqClassLimit",   "FrqCalmPercent",  "FrqRoseTitle",
                         "FrqRoseCaption",    "FrqTotalPeriods", "FrqValidPeriods", "FrqCalmPeriods",
                         "FrqPercentValid",   "FrqTitle1",       "FrqTitle2",       "FrqMeasure",
                         "FrqPeriodText",     "GraphTitle",      "GraphSubTitle",   "GraphCaption",
                         "FrqLoaded",         "CurrentRose"}));
}

TEST(TablesJson, HoldsTheFilesFigures) {
    const auto json = tablesOf("LOVETT_1988.frq");
    EXPECT_EQ(json["FrqVersion"], "2.3");
    EXPECT_EQ(json["FrqLineCount"], 208);
    EXPECT_EQ(json["FrqRoseCount"], 9);
    EXPECT_EQ(json["FrqFraction"].size(), 209U) << "rows 0 to the line count";
    EXPECT_EQ(json["FrqFraction"][1].size(), 7U);
    EXPECT_EQ(json["FrqFraction"][1][0], 0.0);
    EXPECT_EQ(json["FrqTotalPeriods"][0], 0) << "index 0 stays empty";
    EXPECT_EQ(json["FrqTotalPeriods"][1], 8784);
    EXPECT_EQ(json["FrqValidPeriods"][1], 8718);
    EXPECT_EQ(json["FrqPercentValid"][1].dump(), "99.2") << "a single by its shortest text";
    EXPECT_EQ(json["FrqRoseTitle"][0], "");
    EXPECT_EQ(json["FrqRoseTitle"].size(), 10U);
    EXPECT_EQ(json["FrqLoaded"], true);
    EXPECT_EQ(json["CurrentRose"], 1);
}

TEST(TablesJson, FractionsComeBackExactly) {
    ModPolarGraph tables;
    TestHost host;
    loadFreqFile(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", tables, host);
    const auto rows = nlohmann::ordered_json::parse(tablesAsJson(tables))["FrqFraction"];
    ASSERT_EQ(rows.size(), static_cast<std::size_t>(tables.FrqFraction.rows()));
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t c = 0; c < 7; ++c)
            EXPECT_EQ(rows[row][c].get<double>(),
                      tables.FrqFraction(static_cast<std::int64_t>(row), static_cast<std::int64_t>(c)));
}

TEST(TablesJson, BeforeAnyLoadAndWithoutRosesTheTablesAreShort) {
    ModPolarGraph tables;
    EXPECT_EQ(nlohmann::ordered_json::parse(tablesAsJson(tables))["FrqFraction"].size(), 0U);
    TestHost host;
    loadFreqFile(ZG_SOURCE_DIR "/tests/graph/frq/data/header_only.frq", tables, host);
    const auto json = nlohmann::ordered_json::parse(tablesAsJson(tables));
    EXPECT_EQ(json["FrqRoseTitle"], nlohmann::ordered_json::parse(R"([""])"));
    EXPECT_EQ(json["FrqTotalPeriods"], nlohmann::ordered_json::parse("[0]"));
    EXPECT_EQ(json["GraphCaption"], "ALL DATA ARE MISSING");
}

TEST(TablesJson, TablesThatTheVersionDoesNotHaveAreNull) {
    const auto json = tablesOf("trade_wind_coast.frq");
    ASSERT_EQ(json["FrqVersion"], "2.0");
    for (const char* name : {"FrqTotalPeriods", "FrqValidPeriods", "FrqCalmPeriods", "FrqPercentValid"})
        EXPECT_TRUE(json[name].is_null()) << name;
}

TEST(TablesJson, TextsOfEitherEncodingComeOutAsUtf8) {
    ModPolarGraph tables;
    tables.FrqTitle1 = "M\xFCnchen";
    tables.FrqTitle2 = "M\xC3\xBCnchen \"quoted\"";
    const auto json = nlohmann::ordered_json::parse(tablesAsJson(tables));
    EXPECT_EQ(json["FrqTitle1"], "M\xC3\xBCnchen");
    EXPECT_EQ(json["FrqTitle2"], "M\xC3\xBCnchen \"quoted\"");
}

}  // namespace
}  // namespace zg
