#include <gtest/gtest.h>

#include "tempoline/readers/Reader.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

/// One output for one day, read from a file with that text.
struct Reading {
    explicit Reading(InputKind kind) {
        control.kind = kind;
        control.outputs[0].station = "00072";
        control.map.projection = "LL";
        control.map.datum = "NWS-84";
    }

    const RoseCounts& of(const std::string& text) {
        path = directory.write("in.dat", text);
        series.clear();
        for (std::size_t i = 0; i < control.outputs.size(); ++i) series.emplace_back(control);
        makeReader(control)->read(path, series);
        series[0].finish();
        return series[0].table().roses()[0];
    }

    std::string failure(const std::string& text) {
        const std::string message = failureOf([&] { of(text); });
        return message.substr(path.size() + 1);
    }

    Control control = dayControl();
    TempDirectory directory;
    std::string path;
    std::vector<Series> series;
};

const std::string upHead = "UP.DAT 2.1\n0\nx\nUTC+0000\n2004 60 0 0 2004 61 0 0\nx\n6201 00072\n";
const std::string upTime = "6201 00072 2004 2 29 0 0 2004 2 29 1 0 9 2\n";

/// Two by two cells of one degree with two levels, with the given angles of the projection.
std::string m3dHead(const std::string& angles, double west) {
    return "3D.DAT 2.1\n0\n1 1 1 1 0 1\nLL " + angles + " " + std::to_string(west) +
           " 40 1 2 2 2\n1 2 3\n2004022900 1 2 2 2\n1 1 2 2 1 2\n0.9\n0.8\n1 1\n2 1\n1 2\n2 2\n";
}

std::string m3dHour(const std::string& low, const std::string& high) {
    std::string text;
    for (const char* const cell : {"1 1", "2 1", "1 2", "2 2"})
        text += std::string("2004022900 ") + cell + " 1 2 3 4 5 6 7 0.7 0.7 9\n" + low + "\n" + high + "\n";
    return text;
}

}  // namespace

TEST(Readers, AMissingValueAtTheEndOfASoundingsLineIsNoFault) {
    Reading reading(InputKind::Up);
    const std::string top = "990,20,280,90,6\n";
    EXPECT_EQ(reading.of(upHead + upTime + "1000,10,280,90,\n" + top).cells[4][3], 1);
    EXPECT_EQ(reading.of(upHead + upTime + "1000,10,280,,\n" + top).cells[4][3], 1);
    EXPECT_EQ(reading.of(upHead + upTime + "1000/10/280//4\n" + top).cells[4][3], 1);
    EXPECT_EQ(reading.of(upHead + upTime + "1000,0,280,90,4\n990,10,280,90,6,\n").cells[4][3], 1);
    EXPECT_EQ(reading.failure(upHead + upTime + "1000,10,280,90\n" + top),
              "9: wind speed: the line ends within a level");
    EXPECT_EQ(reading.failure(upHead + upTime + "1000,10,280,\n" + top),
              "9: wind speed: the line ends within a level");
}

TEST(Readers, TheTopOfASoundingIsAtItsHeight) {
    Reading reading(InputKind::Up);
    EXPECT_EQ(reading.of(upHead + upTime + "1000,1.12,280,90,4\n990,11.12,280,90,6\n").cells[4][3], 1);
}

TEST(Readers, AnglesOf3dDatMayEndInALetter) {
    Reading reading(InputKind::M3d);
    reading.control.outputs[0].x = -75;
    reading.control.outputs[0].y = 40;
    const std::string hour = m3dHour("1000 10 280 90 6", "900 80 280 90 6");
    for (const char* const angles : {"40.0 -97.0 30.0 60.0", "40N 97W 30n NONE"})
        EXPECT_EQ(reading.of(m3dHead(angles, -75) + hour).cells[4][3], 1) << angles;
    EXPECT_EQ(reading.failure(m3dHead("40X 97W 30N 60N", -75)), "4: RLAT0: \"40X\" is no number");
}

TEST(Readers, ALevelOf3dDatWithoutAHeightIsPassedOver) {
    Reading reading(InputKind::M3d);
    reading.control.cellCoordinates = true;
    reading.control.outputs[0].x = reading.control.outputs[0].y = 1;
    const std::string head = m3dHead("40 -97 30 60", -75);
    EXPECT_EQ(reading.of(head + m3dHour("1000 ***** 280 0 1", "900 10 280 90 6")).cells[4][3], 1);
    EXPECT_EQ(reading.of(head + m3dHour("1000 10 280 90 6", "900 nan 280 0 1")).cells[4][3], 1);
    for (const int profile : {3, 4}) {
        reading.control.profileMethod = profile;
        EXPECT_EQ(reading.of(head + m3dHour("1000 nan 280 90 6", "900 ***** 280 90 6")).valid, 0);
    }
    EXPECT_EQ(reading.failure(head + m3dHour("1000 ten 280 90 6", "900 80 280 90 6")),
              "15: height: \"ten\" is no number");
}

TEST(Readers, ATimeOf3dDatIsTenDigits) {
    Reading reading(InputKind::M3d);
    reading.control.cellCoordinates = true;
    reading.control.outputs[0].x = reading.control.outputs[0].y = 1;
    const std::string hour = m3dHour("1000 10 280 90 6", "900 80 280 90 6");
    for (const std::string stamp : {"200402290", "20040229000", "20040229x0"})
        EXPECT_EQ(reading.failure(m3dHead("40 -97 30 60", -75) + stamp + hour.substr(10)),
                  "14: time: a time as yyyymmddhh is needed")
            << stamp;
}

TEST(Readers, APlaceBehindTheDateLineLiesInAGridFrom190Degrees) {
    Reading reading(InputKind::M3d);
    reading.control.outputs[0].x = -169.5;
    reading.control.outputs[0].y = 40.5;
    const std::string text = m3dHead("0 0 0 0", 190) + m3dHour("1000 10 280 90 6", "900 80 280 90 6");
    EXPECT_EQ(reading.of(text).cells[4][3], 1);
    reading.control.map.datum = "WGS-84";
    EXPECT_EQ(reading.of(text).cells[4][3], 1);
}

TEST(Readers, TheNoiseOfTheMiddleOfTwoFacesIsNoHeight) {
    Reading reading(InputKind::Ventos);
    reading.control.outputs[0].height = 0.4;
    ASSERT_LT((0.1 + 0.7) / 2, 0.4);
    const std::string head =
        "VENTOS.DAT 2.1\n0\n2004 2 29 0 0 2004 3 1 0 0 UTC+0000 3600\nLL NWS-84 N 0 0 0 0 0 0 0\n1 1 1 0 0 "
        "2\n";
    EXPECT_EQ(reading.of(head + "0.1 0.7\n2004 2 29 0 0\n-6\n0\n").cells[4][3], 1);
}

TEST(Readers, AProfileNamesTheLineOfTheHourItself) {
    Reading reading(InputKind::AermPfl);
    const auto hour = [](int number, int levels) {
        std::string text;
        for (int level = 1; level <= levels; ++level)
            text += "2004 2 29 " + std::to_string(number) + " " + std::to_string(10 * level) + " 0 90 6\n";
        return text;
    };
    EXPECT_EQ(reading.failure(hour(2, 2) + hour(1, 3) + hour(3, 1)),
              "3: time: records are out of order: 2004-02-29 00:00:00 follows 2004-02-29 01:00:00");
    EXPECT_EQ(reading.failure(hour(2, 1) + hour(1, 2)).substr(0, 2), "2:");
    reading.of(hour(1, 2) + hour(2, 2) + "\n" + hour(3, 2));
    EXPECT_EQ(reading.series[0].records().used, 3);
}

TEST(Readers, RecordsOfOtherMonitorsAreNotLookedAt) {
    Reading reading(InputKind::MonitorW);
    const std::string head = "DATETIME,STNCODE,DATAAVID,WD,WS\n";
    EXPECT_EQ(reading.of(head + "2/29/2004 1:00,5,x,90,3\n2/29/2004 1:00,00072,60,90,6\n").cells[4][3], 1);
    EXPECT_EQ(reading.of(head + "x,5\n2/29/2004 1:00,00072,60,90,6\n").cells[4][3], 1);
    EXPECT_EQ(reading
                  .of(head + "2/29/2004 1:00,5,15,,\n2/29/2004 1:00,00072,60,90,6\n"
                             "2/29/2004 2:00,00072,,90,6\n")
                  .cells[4][3],
              2);
    EXPECT_EQ(reading.failure(head + "2/29/2004 1:00,00072,,90,6\n"), "2: DATAAVID: \"\" is no whole number");
}

TEST(Readers, AStationOfASurfFileIsThatOfItsRowBeforeThatOfItsName) {
    Reading reading(InputKind::Surf);
    const std::string text =
        "SURF.DAT 2.1\n0\nx\nUTC+0000\n2004 60 0 0 2004 61 0 0 3\n00072\n5\n00072\n"
        "2004 60 0 0 2004 60 1 0\n1 90 0 0 0 0 0 0\n3 90 0 0 0 0 0 0\n6 90 0 0 0 0 0 0\n";
    for (const auto& [id, speedClass] :
         {std::pair(1, 0), std::pair(2, 0), std::pair(3, 3), std::pair(9, 0)}) {
        reading.control.outputs[0].id = id;
        EXPECT_EQ(reading.of(text).cells[4][static_cast<std::size_t>(speedClass)], 1) << id;
    }
    reading.control.outputs[0].station = "6";
    EXPECT_EQ(reading.failure(text), "8: stations: there is no station \"6\"");
}

}  // namespace zg::tempoline
