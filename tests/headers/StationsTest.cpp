#include "headers/Stations.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "tests/support/TempDirectory.h"

namespace {

using namespace zg;
using Texts = std::vector<std::string>;

class StationTableTest : public testing::Test {
 protected:
    StationTableTest() {
        stations = {};
        applicationDirectory = directory_.path();
    }
    ~StationTableTest() override {
        stations = {};
        applicationDirectory.clear();
    }

    void load(const std::string& bytes) {
        directory_.write("Station_Data.csv", bytes);
        LoadStationData();
    }

    TempDirectory directory_;
};

const std::string twoRows =
    "STATION_DATA.CSV,V1.0\r\n"
    "Name,Code,X,Y,,,,Y,X,Datum\r\n"
    "Alpha, A1 ,1.5,2.5,c4,c5,c6,45.0,-120.0,WGS-84\r\n"
    "Beta Hill,b2,3,4,,,,46.0,-121.0,NAS-C,too many\r\n";

TEST_F(StationTableTest, TenColumnsTrimmedAndASpareSlot) {
    load(twoRows);
    EXPECT_EQ(stations.gsStationCol0, (Texts{"Alpha", "Beta Hill", ""}));
    EXPECT_EQ(stations.gsStationCol1, (Texts{"A1", "b2", ""}));
    EXPECT_EQ(stations.gsStationCol2, (Texts{"1.5", "3", ""}));
    EXPECT_EQ(stations.gsStationCol3, (Texts{"2.5", "4", ""}));
    EXPECT_EQ(stations.gsStationCol4, (Texts{"c4", "", ""}));
    EXPECT_EQ(stations.gsStationCol5, (Texts{"c5", "", ""}));
    EXPECT_EQ(stations.gsStationCol6, (Texts{"c6", "", ""}));
    EXPECT_EQ(stations.gsStationCol7, (Texts{"45.0", "46.0", ""}));
    EXPECT_EQ(stations.gsStationCol8, (Texts{"-120.0", "-121.0", ""}));
    EXPECT_EQ(stations.gsStationCol9, (Texts{"WGS-84", "NAS-C", ""}));
    EXPECT_EQ(stations.rows, 2U);
}

TEST_F(StationTableTest, HeadingCountsInAnyCaseWithBlanksRoundIt) {
    load(" station_data.csv , v1.0 ,extra\nheadings\na,b,c,d,e,f,g,h,i,j");
    EXPECT_EQ(stations.gsStationCol0, (Texts{"a", ""}));
    EXPECT_EQ(stations.rows, 1U);
}

TEST_F(StationTableTest, WrongHeadingIsSilentAndLoadsNothing) {
    for (const char* heading : {"STATION_DATA.CSV,V1.1", "STATIONS.CSV,V1.0", "STATION_DATA.CSV V1.0,"}) {
        stations = {};
        load(std::string(heading) + "\r\nheadings\r\na,b,c,d,e,f,g,h,i,j\r\n");
        EXPECT_EQ(stations.gsStationCol0, (Texts{"", ""})) << heading;
        EXPECT_EQ(stations.gsStationCol9, (Texts{"", ""})) << heading;
        EXPECT_EQ(stations.rows, 0U) << heading;
    }
}

TEST_F(StationTableTest, HeadingOfOneFieldIsSilentToo) {
    load("STATION_DATA.CSV\r\nheadings\r\na,b,c,d,e,f,g,h,i,j\r\n");
    EXPECT_EQ(stations.gsStationCol0, (Texts{"", ""}));
    EXPECT_EQ(stations.rows, 0U);
}

TEST_F(StationTableTest, MissingFileLeavesTheTableAsItStands) {
    load(twoRows);
    std::filesystem::remove(directory_.file("Station_Data.csv"));
    LoadStationData();
    EXPECT_EQ(stations.gsStationCol0, (Texts{"Alpha", "Beta Hill", ""}));
    EXPECT_EQ(stations.rows, 2U);
}

TEST_F(StationTableTest, MissingFileAtTheFirstStartLeavesItEmpty) {
    LoadStationData();
    EXPECT_TRUE(stations.gsStationCol0.empty());
    EXPECT_EQ(stations.rows, 0U);
}

TEST_F(StationTableTest, DirectoryInTheFilesPlaceIsSilent) {
    std::filesystem::create_directory(directory_.file("Station_Data.csv"));
    LoadStationData();
    EXPECT_TRUE(stations.gsStationCol0.empty());
}

TEST_F(StationTableTest, EmptyFileAndHeadingAloneAreSilent) {
    load("");
    EXPECT_TRUE(stations.gsStationCol0.empty());
    load("STATION_DATA.CSV,V1.0\r\n");
    EXPECT_TRUE(stations.gsStationCol0.empty());
    load("STATION_DATA.CSV,V1.0\r\nheadings\r\n");
    EXPECT_EQ(stations.gsStationCol0, Texts{""}) << "the spare slot";
    EXPECT_EQ(stations.rows, 0U);
}

TEST_F(StationTableTest, ShortRowEndsTheLoadAndKeepsWhatWasRead) {
    load(
        "STATION_DATA.CSV,V1.0\r\nheadings\r\na,b,c,d,e,f,g,h,i,j\r\nk,l,m\r\n"
        "n,o,p,q,r,s,t,u,v,w\r\n");
    EXPECT_EQ(stations.gsStationCol0, (Texts{"a", "k", "", ""}));
    EXPECT_EQ(stations.gsStationCol2, (Texts{"c", "m", "", ""}));
    EXPECT_EQ(stations.gsStationCol3, (Texts{"d", "", "", ""}));
    EXPECT_EQ(stations.rows, 1U);
}

TEST_F(StationTableTest, EmptyLineEndsTheLoad) {
    load("STATION_DATA.CSV,V1.0\r\nheadings\r\na,b,c,d,e,f,g,h,i,j\r\n\r\n");
    EXPECT_EQ(stations.gsStationCol0, (Texts{"a", "", ""}));
    EXPECT_EQ(stations.rows, 1U);
}

TEST_F(StationTableTest, ANameIsFoundByItsCodeInAnyLetterCase) {
    load(twoRows);
    EXPECT_EQ(stationNameOf("A1"), "Alpha");
    EXPECT_EQ(stationNameOf(" B2 "), "Beta Hill");
    EXPECT_EQ(stationNameOf("a"), "");
}

}  // namespace
