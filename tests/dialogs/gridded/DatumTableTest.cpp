#include "dialogs/gridded/DatumTable.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

const std::string heading =
    "DATUMS.CSV,V1.0,2026-11-22\nContinent or ocean,Geoid and ellipsoid,Region,Code\n";

class DatumTable : public ::testing::Test {
 protected:
    void deliver() { program_.deliver({"datums.csv"}); }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
};

TEST_F(DatumTable, TheDeliveredTableIsReadWhole) {
    deliver();
    ASSERT_TRUE(ReadDatumTable());
    EXPECT_GE(modDatums.datums.size(), 100U);
    std::set<std::string> codes;
    for (const DatumRegion& row : modDatums.datums) {
        EXPECT_TRUE(codes.insert(row.code).second) << row.code;
        EXPECT_LE(row.continent.size(), 20U) << row.code;
        EXPECT_LE(row.ellipsoid.size(), 52U) << row.code;
        EXPECT_LE(row.code.size(), 8U) << row.code;
    }
    for (const char* code : {"WGS-84", "WGS-72", "NAS-C", "NAR-C", "NWS-84", "ESR-S"})
        EXPECT_NE(DatumLookUp(code), nullptr) << code;
    EXPECT_EQ(DatumLookUp("NAS-C")->ellipsoid, "NORTH AMERICAN 1927 - Clarke 1866");
    EXPECT_EQ(DatumLookUp("nas-c"), nullptr);
}

TEST_F(DatumTable, AContinentStandsOnceInTheDeliveredTable) {
    deliver();
    ASSERT_TRUE(ReadDatumTable());
    const std::vector<std::string> list = continents();
    EXPECT_EQ(std::set<std::string>(list.begin(), list.end()).size(), list.size());
}

TEST_F(DatumTable, AnotherDateStampEndsTheReading) {
    directory_.write("datums.csv", "DATUMS.CSV,V1.0,2003-02-14\nx\nAFRICA,A - B,C,D\n");
    EXPECT_FALSE(ReadDatumTable());
    EXPECT_TRUE(modDatums.datums.empty());
}

TEST_F(DatumTable, TheFirstCallIsForTheCountAlone) {
    std::vector<std::int32_t> asked;
    modDatums.init = [&asked](std::int32_t record, InitResult& r) {
        asked.push_back(record);
        r.DatumCount = 3;
        r.status = asked.size() == 1 || record == 2 ? 5 : 0;  // the status of the first call is ignored
    };
    EXPECT_FALSE(ReadDatumTable());
    EXPECT_EQ(asked, (std::vector<std::int32_t>{1, 1, 2})) << "it stops at once";
}

TEST_F(DatumTable, BrokenFilesAreToldWithTheirLine) {
    EXPECT_RAISES(53, "File not found", ReadDatumTable());
    directory_.write("datums.csv", heading + "AFRICA,A - B,C,D\n\nAFRICA,A - B,C\n");
    EXPECT_RAISES(13, "datums.csv, line 5: continent, ellipsoid, region and code are wanted",
                  ReadDatumTable());
    directory_.write("datums.csv", heading + "AFRICA,A - B,C,CODE-TOO-LONG\n");
    EXPECT_RAISES(13, "datums.csv, line 3: field 4 is empty or too long", ReadDatumTable());
    for (const char* first : {"whatever", "DATUMS.CSV", "DATUMS.CSV,V1.0", "DATUMS.CSV,V1.1,2026-11-22",
                              "OTHER.CSV,V1.0,2026-11-22", "DATUMS.CSV,V1.0,2026-11-22,more"}) {
        directory_.write("datums.csv", std::string(first) + "\nx\nAFRICA,A - B,C,D\n");
        EXPECT_RAISES(13, "datums.csv, line 1: DATUMS.CSV,V1.0 and a date are wanted", ReadDatumTable());
    }
    directory_.write("datums.csv", "");
    EXPECT_RAISES(62, "Input past end of file", ReadDatumTable());
}

TEST_F(DatumTable, ALongRegionComesBackFromItsPieces) {
    const std::string region = "MEAN FOR " + std::string(51, 'a') + " b " + std::string(56, 'c') + " , d e";
    directory_.write("datums.csv", heading + "AFRICA,A - B,\"" + region + "\",D\n");
    ASSERT_TRUE(ReadDatumTable());
    EXPECT_EQ(modDatums.datums.at(0).region, region);
}

TEST_F(DatumTable, SpellingsBecomeCodesOnlyExactly) {
    for (const char* typed : {"NAD27", "NAD-27", "NAD 27"}) EXPECT_EQ(DatumAlias(typed), "NAS-C") << typed;
    for (const char* typed : {"NAD83", "NAD 83", "NAD-83"}) EXPECT_EQ(DatumAlias(typed), "NAR-C") << typed;
    for (const char* typed : {"WGS84", "WGS 84"}) EXPECT_EQ(DatumAlias(typed), "WGS-84") << typed;
    for (const char* typed : {"WGS72", "WGS 72"}) EXPECT_EQ(DatumAlias(typed), "WGS-72") << typed;
    EXPECT_EQ(DatumAlias("WGS-72"), "WGS-72");
    EXPECT_EQ(DatumAlias("nad27"), "nad27");
    EXPECT_EQ(DatumAlias("NAD27 "), "NAD27 ");
}

TEST_F(DatumTable, TheCascadeFollowsTheTable) {
    modDatums.datums = {{"A", "X", "one", "1"},
                        {"A", "Y", "two", "2"},
                        {"A", "X", "three", "3"},
                        {"B", "X", "one", "4"},
                        {"A", "Z", "five", "5"}};
    EXPECT_EQ(continents(), (std::vector<std::string>{"A", "B", "A"})) << "each run of neighbours once";
    EXPECT_EQ(ellipsoidsOf("A"), (std::vector<std::string>{"X", "Y", "Z"}));
    EXPECT_EQ(regionsOf("X"), (std::vector<std::string>{"one", "three", "one"})) << "whatever the continent";
    EXPECT_EQ(codeOf("B", "X", "one"), "4");
    EXPECT_EQ(codeOf("A", "X", "three"), "3");
    EXPECT_EQ(codeOf("B", "X", "three"), "3");
    EXPECT_EQ(codeOf("A", "X", "no"), "");
}

}  // namespace
}  // namespace zg
