// The data files that are delivered beside the program.

#include <gtest/gtest.h>

#include <algorithm>

#include "base/Lines.h"
#include "base/Paths.h"
#include "headers/Stations.h"
#include "headers/Zones.h"

namespace {

using namespace zg;

class DeliveredDataTest : public testing::Test {
 protected:
    DeliveredDataTest() {
        timeZones = {};
        stations = {};
        applicationDirectory = ZG_SOURCE_DIR "/data";
    }
    ~DeliveredDataTest() override {
        timeZones = {};
        stations = {};
        applicationDirectory.clear();
    }
};

TEST_F(DeliveredDataTest, TimeZonesHaveTheirRowsInTheirOddOrder) {
    LoadTimeZones();
    ASSERT_EQ(timeZones.gsTimeZoneLabels.size(), 63U);
    EXPECT_EQ(timeZones.gsTimeZoneLabels[0], "(UTC+00:00) Azores, Cape Verde Island");
    EXPECT_EQ(timeZones.gsTimeZoneLabels[2], "(UTC+03:00) Baghdad, Kuwait, Riyadh");
    EXPECT_EQ(timeZones.gsTimeZoneLabels[3],
              "(UTC+00:00) Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London");
    EXPECT_EQ(timeZones.gsTimeZoneLabels[50], "(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(timeZones.gsTimeZoneLabels[52], "(UTC-05:00) Indiana (East)");
    EXPECT_EQ(timeZones.gsTimeZoneLabels[62], "(UTC-12:00) Eniwetok, Kwajalein");
}

TEST_F(DeliveredDataTest, EachKeyIsItsLabelsOffsetWithoutTheColon) {
    LoadTimeZones();
    for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i) {
        std::string offset = timeZones.gsTimeZoneLabels[i].substr(1, 9);
        std::erase(offset, ':');
        EXPECT_EQ(timeZones.gsTimeZoneKeys[i], offset);
    }
    EXPECT_EQ(timeZones.gsTimeZoneKeys[23], "UTC+0530");
}

TEST_F(DeliveredDataTest, StationTableIsEmptyWithItsHeading) {
    LoadStationData();
    EXPECT_EQ(stations.rows, 0U);
    EXPECT_EQ(stations.gsStationCol0, std::vector<std::string>{""}) << "the heading was accepted";
}

TEST_F(DeliveredDataTest, LinesEndInCrLf) {
    for (const char* name : {"TimeZones.txt", "Station_Data.csv"}) {
        const std::string bytes = readWholeFile(inApplicationDirectory(name));
        EXPECT_TRUE(bytes.ends_with("\r\n")) << name;
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), std::count(bytes.begin(), bytes.end(), '\n'))
            << name;
    }
}

}  // namespace
