#include "headers/Zones.h"

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace {

using namespace zg;

class ZoneTableTest : public testing::Test {
 protected:
    ZoneTableTest() {
        timeZones = {};
        applicationDirectory = directory_.path();
    }
    ~ZoneTableTest() override {
        timeZones = {};
        applicationDirectory.clear();
    }

    TempDirectory directory_;
};

TEST_F(ZoneTableTest, HeadingIsSkippedPartsAreTrimmedFurtherFieldsIgnored) {
    directory_.write("TimeZones.txt",
                     "UTC+0900\tnot a row\r\n UTC+0100 \t  (UTC+01:00) A, B \tmore\tand more\r\n"
                     "UTC-0330\t(UTC-03:30) C\n");
    LoadTimeZones();
    EXPECT_EQ(timeZones.gsTimeZoneKeys, (std::vector<std::string>{"UTC+0100", "UTC-0330"}));
    EXPECT_EQ(timeZones.gsTimeZoneLabels, (std::vector<std::string>{"(UTC+01:00) A, B", "(UTC-03:30) C"}));
}

TEST_F(ZoneTableTest, IsKeptForTheProgramsLife) {
    directory_.write("TimeZones.txt", "Key\tLabel\r\nUTC+0100\tA\r\n");
    LoadTimeZones();
    directory_.write("TimeZones.txt", "Key\tLabel\r\nUTC+0200\tB\r\nUTC+0300\tC\r\n");
    LoadTimeZones();
    EXPECT_EQ(timeZones.gsTimeZoneKeys, std::vector<std::string>{"UTC+0100"});
}

TEST_F(ZoneTableTest, MissingFileReachesTheCallerEachTime) {
    EXPECT_RAISES(53, "File not found", LoadTimeZones());
    EXPECT_RAISES(53, "File not found", LoadTimeZones());
    directory_.write("TimeZones.txt", "Key\tLabel\r\nUTC+0100\tA\r\n");
    LoadTimeZones();
    EXPECT_EQ(timeZones.gsTimeZoneLabels, std::vector<std::string>{"A"});
}

TEST_F(ZoneTableTest, FileWithoutHeadingEndsTooSoon) {
    directory_.write("TimeZones.txt", "");
    EXPECT_RAISES(62, "Input past end of file", LoadTimeZones());
}

TEST_F(ZoneTableTest, RowWithoutTabKeepsNothing) {
    directory_.write("TimeZones.txt", "Key\tLabel\r\nUTC+0100\tA\r\nUTC+0200 B\r\n");
    EXPECT_RAISES(9, "Subscript out of range", LoadTimeZones());
    EXPECT_TRUE(timeZones.gsTimeZoneKeys.empty());
    EXPECT_TRUE(timeZones.gsTimeZoneLabels.empty());
}

TEST(HoursFromTimeZoneTest, WestIsPositive) {
    EXPECT_EQ(HoursFromTimeZone("UTC+0000"), 0.0F);
    EXPECT_EQ(HoursFromTimeZone("UTC-0000"), 0.0F);
    EXPECT_EQ(HoursFromTimeZone("UTC+0300"), -3.0F);
    EXPECT_EQ(HoursFromTimeZone("UTC-0500"), 5.0F);
    EXPECT_EQ(HoursFromTimeZone("UTC+1200"), -12.0F);
    EXPECT_EQ(HoursFromTimeZone("UTC-1200"), 12.0F);
}

// Half an hour is added on either side of UTC, which gives wrong values to the east: -2.5 for UTC+0330, -4.5
// for UTC+0530. The dialogs calculate with differences of these values.
TEST(HoursFromTimeZoneTest, HalfAnHourIsAddedOnEitherSide) {
    EXPECT_EQ(HoursFromTimeZone("UTC+0330"), -2.5F);
    EXPECT_EQ(HoursFromTimeZone("UTC+0530"), -4.5F);
    EXPECT_EQ(HoursFromTimeZone("UTC-0330"), 3.5F);
    EXPECT_EQ(HoursFromTimeZone("UTC+0930"), -8.5F);
    EXPECT_EQ(HoursFromTimeZone("UTC+0545"), -5.0F) << "only 30 counts";
}

TEST(HoursFromTimeZoneTest, WhatIsNoKeyIsATypeMismatch) {
    for (const char* key : {"", "UTC", "UTC+", "Greenwich"})
        EXPECT_RAISES(13, "Type mismatch", HoursFromTimeZone(key)) << key;
}

TEST(TimeZoneFromHoursTest, EastAndGreenwichArePlus) {
    EXPECT_EQ(TimeZoneFromHours(0), "UTC+0000");
    EXPECT_EQ(TimeZoneFromHours(-0.0), "UTC+0000");
    EXPECT_EQ(TimeZoneFromHours(5), "UTC-0500");
    EXPECT_EQ(TimeZoneFromHours(-3), "UTC+0300");
    EXPECT_EQ(TimeZoneFromHours(12), "UTC-1200");
    EXPECT_EQ(TimeZoneFromHours(-10), "UTC+1000");
}

TEST(TimeZoneFromHoursTest, FractionsAreRoundedToWholeHours) {
    EXPECT_EQ(TimeZoneFromHours(3.5), "UTC-0400");
    EXPECT_EQ(TimeZoneFromHours(2.5), "UTC-0300");
    EXPECT_EQ(TimeZoneFromHours(-5.5), "UTC+0600");
    EXPECT_EQ(TimeZoneFromHours(3.4), "UTC-0300");
    EXPECT_EQ(TimeZoneFromHours(0.25), "UTC-0000");
}

}  // namespace
