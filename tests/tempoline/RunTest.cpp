#include "tempoline/Run.h"

#include <gtest/gtest.h>

#include "graph/frq/OpenFreqFile.h"
#include "headers/TsfHeader.h"
#include "tempoline/Interrupt.h"
#include "tempoline/Merge.h"
#include "tests/support/TestHost.h"
#include "tests/tempoline/RunSupport.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

/// The outcome of a run with the text as input and that control file: the last line of the listing.
std::string lastLineOf(const std::string& controlFile,
                       std::vector<std::pair<std::string, std::string>> changes, const std::string& data) {
    const InDirectory inside;
    changes.insert(changes.begin(), firstDay.begin(), firstDay.end());
    changes.emplace_back("METINP", "in.dat");
    inside.directory.write("in.dat", data);
    inside.directory.write("c.inp", control(controlFile, changes));
    testing::internal::CaptureStderr();
    const ExitStatus status = run("c.inp");
    const std::string error = testing::internal::GetCapturedStderr();
    const std::string listing = inside.directory.read("base_20050307-20051231_tempoline.lst");
    const std::size_t end = listing.find_last_not_of("\r\n") + 1;
    const std::size_t begin = listing.rfind('\n', end - 1) + 1;
    const std::string last = listing.substr(begin, end - begin);
    EXPECT_EQ(status == ExitStatus::Completed, last == "RUN COMPLETED");
    if (status != ExitStatus::Completed) {
        EXPECT_EQ("ERROR: " + error.substr(11, error.size() - 12), last);
    }
    return last;
}

const std::string surfHead = "SURF.DAT        2.1\n0\nx\n";
const std::string upHeader = "UP.DAT          2.1\n0\nx\nUTC+0000\n2004 1 0 0 2004 2 0 0\nx\n6201 4417\n";
const std::string csvHead = "DATETIME,STNCODE,DATAAVID,WD,WS\n";
const std::string tsfHead =
    "TIMESERIES.TSF 1.3\n0 - none\nx\nMET\nx\nUTC-0500\nGREGORIAN_YMD\n2004 1 1 0 0 2004 1 2 0 0 3600\n";

}  // namespace

TEST(Run, SaysWhatIsWrongInASurfFile) {
    const auto last = [](const std::string& data) {
        return lastLineOf("surf.inp", {{"NTSFOUT", "2"}}, data);
    };
    EXPECT_EQ(last("UP.DAT 2.1\n"), "ERROR: in.dat:1: this is no file of the kind SURF.DAT");
    EXPECT_EQ(last("SURF.DAT 3.0\n"), "ERROR: in.dat:1: version: \"3.0\" is neither 2.0 nor 2.1");
    EXPECT_EQ(last(surfHead + "EST\n"), "ERROR: in.dat:4: time zone: \"EST\" is no zone such as UTC-0500");
    EXPECT_EQ(last(surfHead + "UTC-0500\n2004 1 0 0 2004 2 0 0 1\n1002\n"),
              "ERROR: in.dat:6: stations: there is no station \"1005\"");
    const std::string head = surfHead + "UTC-0500\n2004 1 0 0 2004 2 0 0 2\n1002\n1005\n";
    EXPECT_EQ(last(head + "2004 367 0 0 2004 1 1 0\n"),
              "ERROR: in.dat:8: Julian day: 367 is not in the year 2004");
    EXPECT_EQ(last(head + "2004 1 0 0 2004 1 1 0\n1 2 3 4 5 6 7 8\n"),
              "ERROR: in.dat:10: the file ends where a station's values should be");
    EXPECT_EQ(last(head + "2004 1 0 0 2004 1 1 0\n1 2 3 4 5 6 7 8\n1 2 3\n"),
              "ERROR: in.dat:10: the line has 3 of at least 8 fields");
    EXPECT_EQ(last(head + "2004 1 0 0 2004 1 2 0\n1 2 3 4 5 6 7 8\n1 2 3 4 5 6 7 8\n"),
              "ERROR: in.dat:9: time: the record of 7200 seconds is longer than the step of 3600");
    EXPECT_EQ(last(head + "2004 1 0 0 2004 1 1 0\n1 2 3 4 5 6 7 8\n1 2 3 4 5 6 7 8\n"), "RUN COMPLETED");
}

TEST(Run, SaysWhatIsWrongInASounding) {
    const auto last = [](const std::string& data) { return lastLineOf("up.inp", {}, upHeader + data); };
    EXPECT_EQ(last("6201 4417 2004 1 1 0 0 2004 1 1 1 0 1\n"), "ERROR: in.dat:8: time: 14 fields are needed");
    const std::string stamp = "6201 4417 2004 1 1 0 0 2004 1 1 1 0 9 2\n";
    EXPECT_EQ(last(stamp + "1000,10,280,90\n"), "ERROR: in.dat:9: wind speed: the line ends within a level");
    EXPECT_EQ(last(stamp + "1000,10,280,90,3 990,5,280,90,3\n"),
              "ERROR: in.dat:9: height: the levels of the sounding do not rise");
    EXPECT_EQ(last(stamp + "1000,10,280,90,3 990,20,280,90,3 980,30,280,90,3\n"),
              "ERROR: in.dat:9: levels: more of them than the sounding has");
    EXPECT_EQ(last(stamp + "1000,10,280,90,3\n"), "ERROR: in.dat:10: the file ends where a level should be");
    EXPECT_EQ(last(stamp + "1000, 10., 280., 90, 3.,\n 990/ 200./ / 90/ 3.\n"), "RUN COMPLETED");
}

TEST(Run, SaysWhatIsWrongInAMonitorFile) {
    const auto last = [](const std::string& data) { return lastLineOf("monitorw.inp", {}, data); };
    EXPECT_EQ(last("DATETIME,STNCODE,DATAAVID,WD\n"),
              "ERROR: in.dat:1: headings: there is no column of wind speed");
    EXPECT_EQ(last(csvHead + "1/1/2004 1:00,5,60,90,3\n"),
              "ERROR: in.dat:2: STNCODE: no record is of the station \"00072\"");
    EXPECT_EQ(last(csvHead + "1/1/2004,00072,60,90,3\n"),
              "ERROR: in.dat:2: DATETIME: month/day/year and a time are needed");
    EXPECT_EQ(last(csvHead + "1/1/2004 1:60,00072,60,90,3\n"),
              "ERROR: in.dat:2: DATETIME: minutes and seconds go from 0 to 59");
    EXPECT_EQ(last(csvHead + "1/1/2004 1:00,00072,0,90,3\n"),
              "ERROR: in.dat:2: DATAAVID: 0 minutes are not between 1 and 1440");
    EXPECT_EQ(last(csvHead + "1/1/2004 1:00,00072,60,90\n"),
              "ERROR: in.dat:2: the record has 4 of at least 5 fields");
    EXPECT_EQ(last(csvHead + "\"1/1/2004 12:00:00 AM\",00072,60,90,3\n\n1/1/2004 1:00 PM,00072,60,,\n"),
              "RUN COMPLETED");
}

TEST(Run, SaysWhatIsWrongInASeries) {
    const auto last = [](const std::string& data) { return lastLineOf("tsf.inp", {}, data); };
    EXPECT_EQ(last("TIMESERIES.TSF 1.4\n"), "ERROR: in.dat:1: version: \"1.4\" is not 1.3");
    EXPECT_EQ(last(tsfHead + "1 - one\nWDIR DEG\n"),
              "ERROR: in.dat:10: variables: WDIR and WSPEED are needed");
    const std::string head = tsfHead + "2 - two\nWSPEED M/S\nWDIR DEG\n";
    EXPECT_EQ(last(head + "2004 1 1 0 0 2004 1 1 1 0 3\n"), "ERROR: in.dat:12: the line has 11 of 12 fields");
    EXPECT_EQ(last(head + "2004 1 1 0 0 2004 1 1 1 0 3 north\n"),
              "ERROR: in.dat:12: WDIR: \"north\" is no number");
    EXPECT_EQ(last(head + "2004 1 1 0 0 2004 1 1 1 0 3 90\n"), "RUN COMPLETED");
}

TEST(Run, SaysWhatIsWrongInGriddedFiles) {
    const auto ventos = [](const std::string& data) {
        return lastLineOf("ventos_ll.inp", {{"METSIM", "1"}}, data);
    };
    const std::string head = "VENTOS.DAT 2.1\n0\n2004 1 1 0 0 2004 1 2 0 0 UTC-0500 3600\n";
    EXPECT_EQ(ventos(head + "LL XYZ N 0 0 0 0 0 0 0\n2 2 1 -75 41 1\n0 20\n"),
              "ERROR: in.dat:4: DATUM: \"XYZ\" is no datum code that is known here");
    EXPECT_EQ(ventos(head + "LL WGS-84 N 0 0 0 0 0 0 0\n2 2 1 -79 41 1\n0 20\n"),
              "ERROR: the location -74.5000, 41.2500 of output St_VENTOS lies outside the grid");
    const std::string good = head + "LL WGS-84 N 0 0 0 0 0 0 0\n2 2 1 -75 41 1\n0 20\n";
    EXPECT_EQ(ventos(good + "2004 1 1 0 0\n1 2\nx\n3 4\nx\n"), "RUN COMPLETED")
        << "the second row is not needed";
    EXPECT_EQ(ventos(good + "2004 1 1 0 0\n1 2\n"),
              "ERROR: in.dat:9: the file ends where a row of u should be");
    EXPECT_EQ(ventos(good + "2004 1 1 0 0\n1\n"), "ERROR: in.dat:8: a row of u: it has 1 of 2 values");
}

TEST(Run, GriddedFilesMayBeOfEqualAreas) {
    const auto ventos = [](const std::string& projection, const std::string& grid) {
        return lastLineOf("ventos_ll.inp", {{"METSIM", "1"}},
                          "VENTOS.DAT 2.1\n0\n2004 1 1 0 0 2004 1 2 0 0 UTC-0500 3600\n" + projection +
                              " WGS-84 N NONE 0 0 41.25N 74.5W NONE NONE\n" + grid +
                              "\n0 20\n2004 1 1 0 0\n1 2\n3 4\n1 2\n3 4\n");
    };
    EXPECT_EQ(ventos("LAZA", "2 2 1 -5 -5 10"), "RUN COMPLETED") << "the location is its origin";
    EXPECT_EQ(ventos("LAZB", "2 2 1 -5 -5 10"), "ERROR: in.dat:4: PMAP: \"LAZB\" is no known projection");
}

TEST(Run, TheDesktopLoadsWhatItMade) {
    const InDirectory inside;
    const std::string line = "2004 1 1 1 1 0 0 0 0 0 0 0 0 0 0 4.0 90.0 10.0\n";
    inside.directory.write("in.sfc", "header\n" + line);
    auto changes = firstDay;
    changes.emplace_back("METINP", "in.sfc");
    inside.directory.write("c.inp", control("aermsfc.inp", changes));
    ASSERT_EQ(run("c.inp"), ExitStatus::Completed);
    EXPECT_NE(inside.directory.read("out.tab").find("AERMSFC in.sfc, station "), std::string::npos);
    ModPolarGraph tables;
    TestHost host;
    ASSERT_EQ(loadFreqFile("out.frq", tables, host), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseCount, 6);  // no month of a day in January is in the second season
    EXPECT_EQ(tables.FrqVersion, "2.3");
    EXPECT_EQ(tables.FrqMeasure, "Height = 10.0 m");
    EXPECT_EQ(tables.FrqRoseTitle(2), "Wet");
    EXPECT_EQ(tables.FrqTotalPeriods(1), 24);
    EXPECT_EQ(tables.FrqValidPeriods(1), 1);
    EXPECT_EQ(tables.FrqFraction(5, 3), 1.0);
    EXPECT_EQ(tables.FrqDirectionLabel(16), "NNW");
}

TEST(Run, TheDesktopLoadsClassesWithEqualAndNegativeLimits) {
    const InDirectory inside;
    std::string lines = "header\n";
    for (const char* const hourAndWind : {"1 0 0 0 0 0 0 0 0 0 0 1.0 90.0", "2 0 0 0 0 0 0 0 0 0 0 0.0 90.0"})
        lines += std::string("2004 1 1 1 ") + hourAndWind + " 10.0\n";
    inside.directory.write("in.sfc", lines);
    auto changes = firstDay;
    changes.emplace_back("METINP", "in.sfc");
    changes.emplace_back("WSBIN", "-1, 1, 1, 2, 3, 4");
    inside.directory.write("c.inp", control("aermsfc.inp", changes));
    ASSERT_EQ(run("c.inp"), ExitStatus::Completed);
    ModPolarGraph tables;
    TestHost host;
    ASSERT_EQ(loadFreqFile("out.frq", tables, host), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqClassLimit(0), " -1");
    EXPECT_EQ(tables.FrqClassLimit(3), "1");
    EXPECT_EQ(tables.FrqFraction(5, 1), 0.5);
    EXPECT_EQ(tables.FrqFraction(5, 2), 0);  // equal limits leave it empty
    EXPECT_EQ(tables.FrqFraction(5, 3), 0.5);
    mergeTabs({"out.tab"}, "sum");
    EXPECT_EQ(inside.directory.read("sum.frq"), inside.directory.read("out.frq"));
}

TEST(Run, TheDialogReadsTheHeaderOfTheSeries) {
    const InDirectory inside;
    inside.directory.write("in.sfc", "header\n");
    auto changes = firstDay;
    changes.emplace_back("METINP", "in.sfc");
    changes.emplace_back("NSECDT", "7200");
    inside.directory.write("c.inp", control("aermsfc.inp", changes));
    ASSERT_EQ(run("c.inp"), ExitStatus::Completed);
    HeaderSource source("out.tsf");
    const TsfHeader header = readTsfHeader(source);
    EXPECT_EQ(header.outcome, TsfOutcome::Read);
    EXPECT_EQ(header.station, "00072");
    EXPECT_EQ(header.timeZone, "UTC-0500");
    EXPECT_EQ(header.begin, makeDate(2004, 1, 1));
    EXPECT_EQ(header.end, makeDate(2004, 1, 2));
    EXPECT_EQ(header.stepSeconds, 7200);
}

TEST(Run, WithoutARecordInThePeriodTheDesktopSaysThatAllAreMissing) {
    const InDirectory inside;
    inside.directory.write("in.sfc", "header\n");
    auto changes = firstDay;
    changes.emplace_back("METINP", "in.sfc");
    inside.directory.write("c.inp", control("aermsfc.inp", changes));
    ASSERT_EQ(run("c.inp"), ExitStatus::Completed);
    ModPolarGraph tables;
    TestHost host;
    ASSERT_EQ(loadFreqFile("out.frq", tables, host), FreqFileOutcome::Loaded);
    EXPECT_EQ(tables.FrqRoseCount, 0);
    EXPECT_EQ(tables.GraphCaption, "ALL DATA ARE MISSING");
}

}  // namespace zg::tempoline
