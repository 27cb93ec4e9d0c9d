#include "headers/RawHeader.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

RawHeader sample(const char* name, InputKind kind) {
    HeaderSource source(std::string(ZG_SOURCE_DIR "/data/samples/") + name);
    return readRawHeader(source, kind);
}

struct Told {
    const char* file;
    InputKind kind;
    const char* zone;
    DateTime begin;
    DateTime end;
    std::int32_t step;
    std::vector<std::string> stations;
};

TEST(RawHeader, EverySampleTellsItsPeriodZoneStepAndStations) {
    const DateTime december = makeDate(2023, 12, 1);
    const DateTime february = makeDate(2024, 2, 1);
    for (const Told& told :
         {Told{"valley_surf.dat", InputKind::Surf, "UTC-0500", december, february, 3600, {"10011", "10012"}},
          Told{"valley_up.dat", InputKind::Up, "UTC+0000", december, february, 0, {"00004417"}},
          Told{"valley_monitor.csv", InputKind::MonitorW, "", december, february, 3600, {"valley", "ridge"}},
          Told{"valley_series.tsf", InputKind::Tsf, "UTC-0500", december, february, 3600, {"10011"}},
          Told{"AERMET2.SFC",
               InputKind::AermSfc,
               "",
               makeDate(1988, 3, 1),
               makeDate(1988, 3, 5),
               3600,
               {"14735"}},
          Told{"AERMET2.PFL", InputKind::AermPfl, "", makeDate(1988, 3, 1), makeDate(1988, 3, 5), 3600, {}},
          Told{"valley_model.m3d", InputKind::M3d, "UTC+0000", december, makeDate(2023, 12, 8), 3600, {}},
          Told{"valley_ventos.dat",
               InputKind::Ventos,
               "UTC-0500",
               december,
               makeDate(2023, 12, 8),
               3600,
               {}}}) {
        const RawHeader header = sample(told.file, told.kind);
        EXPECT_EQ(header.kind, told.kind) << told.file;
        EXPECT_EQ(header.timeZone, told.zone) << told.file;
        EXPECT_EQ(header.begin, told.begin) << told.file << ' ' << formatDate(header.begin);
        EXPECT_EQ(header.end, told.end) << told.file << ' ' << formatDate(header.end);
        EXPECT_EQ(header.stepSeconds, told.step) << told.file;
        EXPECT_EQ(header.stations, told.stations) << told.file;
    }
}

std::string faultOf(const std::string& text, InputKind kind) {
    try {
        HeaderSource source(text, "file");
        readRawHeader(source, kind);
    } catch (const HeaderError& error) {
        return messageOf(error);
    }
    return {};
}

TEST(RawHeader, AnotherKindOrVersionIsAFault) {
    EXPECT_EQ(faultOf("UP.DAT 2.1\n", InputKind::Surf),
              "line 1 (file type): the file does not begin with SURF.DAT");
    EXPECT_EQ(faultOf("SURF.DAT        2.2\n", InputKind::Surf),
              "line 1 (file type): the version is not known");
    EXPECT_EQ(faultOf("x\n", InputKind::Up), "line 1 (file type): the file does not begin with UP.DAT");
    EXPECT_EQ(faultOf("UP.DAT 1.0\n", InputKind::Up), "line 1 (file type): the version is not known");
    EXPECT_EQ(faultOf("A,B\n", InputKind::MonitorW),
              "line 1 (names): there are no columns DATETIME and STNCODE");
    EXPECT_EQ(faultOf("x\n", InputKind::Tsf),
              "line 1 (file type): the file does not begin with TIMESERIES.TSF");
    EXPECT_EQ(faultOf("TIMESERIES.TSF 1.2\n", InputKind::Tsf),
              "line 1 (file type): the version is not 1.3, or the dates are not GREGORIAN_YMD");
    EXPECT_EQ(faultOf("time,speed\n", InputKind::Csv),
              "line 1 (file type): a table of winds has no header of its own");
    EXPECT_EQ(faultOf("VENTOS.DAT 2.0\n", InputKind::Ventos), "line 1 (file type): version 2.0 is not known");
}

}  // namespace
}  // namespace zg
