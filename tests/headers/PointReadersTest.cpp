// The readers of UP.DAT, monitor, AERMET and time-series files.

#include <gtest/gtest.h>

#include "headers/AermetPeriod.h"
#include "headers/MonitorHeader.h"
#include "headers/TsfHeader.h"
#include "headers/UpHeader.h"

namespace zg {
namespace {

std::string textOf(DateTime moment) { return formatDate(moment) + " " + longTime(timeOf(moment)); }

class PointReaders : public ::testing::Test {
 protected:
    static UpHeader up(const std::string& text) {
        HeaderSource source(text, "in.dat");
        return readUpHeader(source);
    }
    static MonitorHeader monitor(const std::string& text, const std::function<void()>& onProgress = {},
                                 const std::function<void(const std::string&)>& onStation = {}) {
        HeaderSource source(text, "in.csv");
        return readMonitorHeader(source, onProgress, onStation);
    }
    static AermetPeriod aermet(const std::string& text, InputKind kind,
                               const std::function<void()>& onProgress = {}) {
        HeaderSource source(text, "in.met");
        return readAermetPeriod(source, kind, onProgress);
    }
    static AermetPeriod sample(const char* name, InputKind kind) {
        HeaderSource source(std::string(ZG_SOURCE_DIR "/data/samples/") + name);
        return readAermetPeriod(source, kind);
    }
    static TsfHeader tsf(const std::string& text) {
        HeaderSource source(text, "in.tsf");
        return readTsfHeader(source);
    }
    template <typename Read>
    int errorOf(Read read) {
        try {
            read();
        } catch (const HeaderError& error) {
            where_ = error.where;
            text_ = messageOf(error);
            return error.number;
        }
        return 0;
    }

    std::string where_;
    std::string text_;
};

const std::string up21Text =
    "UP.DAT          2.1             Hour Start and End Times with Seconds\r\n1\r\nc\r\nNONE\r\nUTC+0000\r\n"
    "  1990   8  0 1830  1990  15 23  3599  500.\r\n  F F F F\r\n   6201     4417   1990\r\n";

TEST_F(PointReaders, Up21HasItsFieldsAndZone) {
    const UpHeader header = up(up21Text);
    EXPECT_TRUE(header.isUp);
    EXPECT_EQ(header.version, "2.1");
    EXPECT_EQ(header.timeZone, "UTC+0000");
    EXPECT_EQ(textOf(header.begin), "Jan 8, 1990 12:30:30 AM");
    EXPECT_EQ(textOf(header.end), "Jan 15, 1990 11:59:59 PM");
    EXPECT_EQ(header.beginFields.minute, 30);
    EXPECT_EQ(header.beginFields.second, 30);
    EXPECT_EQ(header.endFields.minute, 59);
    EXPECT_EQ(header.endFields.second, 59);
    EXPECT_EQ(header.station, "4417");
}

TEST_F(PointReaders, Up20BeginsAnHourEarlier) {
    const UpHeader header = up("up.dat 2.0\n0\nNONE\n1990 8 1 1990 15 23\nskipped\n x 77 y\n");
    EXPECT_TRUE(header.isUp) << "letter case does not count";
    EXPECT_EQ(header.timeZone, "UTC+0000");
    EXPECT_EQ(textOf(header.begin), "Jan 8, 1990 12:00:00 AM");
    EXPECT_EQ(header.station, "77");
}

TEST_F(PointReaders, UpOfAnotherKindOrVersion) {
    EXPECT_FALSE(up("SURF.DAT 2.1\n").isUp);
    EXPECT_FALSE(up("\n").isUp);
    EXPECT_EQ(up("UP.DAT 2.2\n").version, "");
    EXPECT_EQ(errorOf([&] { up("UP.DAT\n"); }), 9);
    EXPECT_EQ(up("UP.DAT 2.0\n-1\nNONE\n1990 8 1 1990 15 23\nskipped\n x 77 y\n").station, "77")
        << "one line follows the comments, even of a negative count";
}

TEST_F(PointReaders, UpCutAnywhereIsTheEndOfTheFile) {
    for (std::size_t at = up21Text.find("\r\n") + 2; at < up21Text.size(); at = up21Text.find("\r\n", at) + 2)
        EXPECT_EQ(errorOf([&] { up(up21Text.substr(0, at)); }), 62) << at;
}

TEST_F(PointReaders, SecondsOfAWholeHourAreNoTimeInUp) {
    const auto with = [](const char* from, const char* to) {
        std::string text = up21Text;
        return text.replace(text.find(from), std::string(from).size(), to);
    };
    EXPECT_EQ(textOf(up(with("15 23  3599", "15 24  3599")).end), "Jan 16, 1990 12:59:59 AM");
    EXPECT_EQ(errorOf([&] { up(with("15 23  3599", "15 23 3600")); }), 13);
    EXPECT_EQ(text_, "line 6 (period): end does not exist");
    EXPECT_EQ(errorOf([&] { up(with("15 23  3599", "15 24 7200")); }), 13);
    EXPECT_EQ(errorOf([&] { up(with("0 1830", "0 3600")); }), 13);
    EXPECT_EQ(errorOf([&] { up(with("0 1830", "0   -1")); }), 13);
}

const std::string csv =
    "\"STNCODE\",\"DATETIME\",\"X\",\"DATAAVID\"\r\nA1,3/15/2005 1:00:00,A1,60\r\n\r\n"
    "B2,3/15/2005 2:00:00,B2,60\r\nA1,3/16/2005 13:30,\"A1\",60\r\n\r\n";

TEST_F(PointReaders, MonitorListsItsStationsInTurnsAndReadsToItsLastRecord) {
    const MonitorHeader header = monitor(csv);
    EXPECT_TRUE(header.isMonitor);
    EXPECT_EQ(header.averagingMinutes, 60);
    EXPECT_EQ(header.stations, (std::vector<std::string>{"A1", "B2", "A1"}));
    EXPECT_EQ(textOf(header.begin), "Mar 15, 2005 12:00:00 AM");
    EXPECT_EQ(textOf(header.end), "Mar 16, 2005 1:30:00 PM");
}

TEST_F(PointReaders, MonitorWithOneRecordHasOneLineForBothEnds) {
    const MonitorHeader header = monitor("DATETIME,STNCODE,DATAAVID\n1/2/99 6:00:00 PM,7,15");
    EXPECT_EQ(textOf(header.begin), "Jan 2, 1999 5:45:00 AM") << "PM is lost";
    EXPECT_EQ(textOf(header.end), "Jan 2, 1999 6:00:00 AM");
    EXPECT_EQ(header.stations, std::vector<std::string>{"7"});
}

TEST_F(PointReaders, MonitorStationsComeFromTheThirdFieldAfterTheFirstRecord) {
    const MonitorHeader header =
        monitor("STNCODE,DATETIME,VALUE,DATAAVID\nS,1/1/2005 1:00:00,5.5,60\nS,1/1/2005 2:00:00,6.5,60\n");
    EXPECT_EQ(header.stations, (std::vector<std::string>{"S", "6.5"})) << "as such files are read";
}

TEST_F(PointReaders, BlanksAtTheEndsOfAMonitorLineAreNoPartOfItsFields) {
    const MonitorHeader header = monitor(
        "DATETIME,DATAAVID,STNCODE\n 1/1/2005 1:00:00,60,A  \n 1/1/2005 2:00:00,60,A  \n"
        "  1/1/2005 3:00:00,60, B \n1/1/2005 4:00:00,60,\"B\"  \n   \n");
    EXPECT_EQ(header.stations, (std::vector<std::string>{"A", " B", "B"})) << "those within the line are";
    EXPECT_EQ(textOf(header.end), "Jan 1, 2005 4:00:00 AM");
}

TEST_F(PointReaders, MonitorTellsItsStationsBeforeAFault) {
    std::vector<std::string> told;
    EXPECT_EQ(errorOf([&] {
                  monitor(
                      "DATETIME,DATAAVID,STNCODE\n1/1/2005 1:00:00,60,A\n"
                      "1/1/2005 2:00:00,60,B\nx\n",
                      {}, [&](const std::string& station) { told.push_back(station); });
              }),
              9);
    EXPECT_EQ(where_, "4");
    EXPECT_EQ(text_, "line 4 (record): station (third field) is missing");
    EXPECT_EQ(told, (std::vector<std::string>{"A", "B"}));
}

TEST_F(PointReaders, MonitorNamesMayFollowAByteOrderMark) {
    const MonitorHeader header =
        monitor("\xEF\xBB\xBF\"DATETIME\",STNCODE,DATAAVID\n1/2/1999 6:00:00,7,15\n");
    EXPECT_TRUE(header.isMonitor);
    EXPECT_EQ(textOf(header.end), "Jan 2, 1999 6:00:00 AM");
}

TEST_F(PointReaders, MonitorFaults) {
    EXPECT_FALSE(monitor("DATETIME,CODE,DATAAVID\n").isMonitor);
    EXPECT_FALSE(monitor("datetime,STNCODE,DATAAVID\n").isMonitor) << "its case counts";
    EXPECT_EQ(errorOf([&] { monitor("DATETIME,STNCODE\n1/1/2005 1:00:00,S\n"); }), 9)
        << "the averaging time is missing";
    EXPECT_EQ(errorOf([&] { monitor("DATETIME,STNCODE,DATAAVID\n"); }), 62);
    EXPECT_EQ(errorOf([&] { monitor("DATETIME,STNCODE,DATAAVID\n1/1/2005 1:00:00,S,60\nx,y\n"); }), 9);
    EXPECT_EQ(where_, "3");
    EXPECT_EQ(text_, "line 3 (record): station (third field) is missing");
    EXPECT_EQ(errorOf([&] { monitor("DATETIME,STNCODE,DATAAVID\n13/1/2005 1:00:00,S,60\n"); }), 13);
    EXPECT_EQ(text_, "line 2 (record): DATETIME \"13/1/2005 1:00:00\" is not a date and a time");
    EXPECT_EQ(
        errorOf([&] { monitor("DATETIME,STNCODE,DATAAVID\n1/1/2005 1:00:00,S,60\n1/1/2005 25:00,S,60\n"); }),
        13);
    EXPECT_EQ(text_, "line 3 (record): DATETIME \"1/1/2005 25:00\" is not a date and a time");
}

TEST_F(PointReaders, LineEndsOfEveryKindAndHighBytes) {
    const std::string records =
        "DATETIME,STNCODE,DATAAVID|1/1/2005 1:00:00,\xE9t\xE9,60|1/1/2005 2:00:00,x,\xFF|";
    for (const char* end : {"\r", "\n", "\r\n"}) {
        std::string text;
        for (const char character : records)
            text += character == '|' ? std::string(end) : std::string(1, character);
        const MonitorHeader header = monitor(text);
        EXPECT_EQ(header.stations, (std::vector<std::string>{"\xE9t\xE9", "\xFF"}));
    }
}

TEST_F(PointReaders, TheRealSurfaceYearHasItsPeriod) {
    const AermetPeriod period = sample("LOVETT.SFC", InputKind::AermSfc);
    EXPECT_EQ(period.station, "14735");
    EXPECT_EQ(textOf(period.begin), "Jan 1, 1988 12:00:00 AM");
    EXPECT_EQ(textOf(period.end), "Jan 1, 1989 12:00:00 AM");
}

TEST_F(PointReaders, TheRealFilesOfFourDaysHaveTheirPeriod) {
    const AermetPeriod surface = sample("AERMET2.SFC", InputKind::AermSfc);
    const AermetPeriod profile = sample("AERMET2.PFL", InputKind::AermPfl);
    EXPECT_EQ(surface.station, "14735");
    for (const AermetPeriod& period : {surface, profile}) {
        EXPECT_EQ(textOf(period.begin), "Mar 1, 1988 12:00:00 AM");
        EXPECT_EQ(textOf(period.end), "Mar 5, 1988 12:00:00 AM");
    }
}

TEST_F(PointReaders, AProfileHasNoHeaderAndItsHourInTheFourthField) {
    const AermetPeriod period =
        aermet("88  3  1  1    10.0 0   317.5     0.80\n88  3  4 24   100.0 1   317.0     3.80\n\n  \n",
               InputKind::AermPfl);
    EXPECT_EQ(period.station, "");
    EXPECT_EQ(textOf(period.begin), "Mar 1, 1988 12:00:00 AM");
    EXPECT_EQ(textOf(period.end), "Mar 5, 1988 12:00:00 AM");
}

TEST_F(PointReaders, AWrongAermetFileIsAnError) {
    EXPECT_EQ(errorOf([&] { aermet(csv, InputKind::AermSfc); }), 9);
    EXPECT_EQ(errorOf([&] { aermet("", InputKind::AermPfl); }), 62);
    EXPECT_EQ(errorOf([&] { aermet("x y z 1\n", InputKind::AermPfl); }), 13);
    EXPECT_EQ(text_, "line 1 (first hour): date does not exist");
    const std::string hours = "88 3 1 1 x\n88 3 4 25 x\n\n";
    EXPECT_EQ(errorOf([&] { aermet(hours, InputKind::AermPfl); }), 13);
    EXPECT_EQ(text_, "line 2 (last hour): hour \"25\" is not an hour");
}

/// Lines of 50 characters each that begin with these texts.
std::string fiftyCharacters(const std::string& begin, int lines) {
    const std::string line = begin + std::string(50 - begin.size(), 'x') + "\n";
    std::string text;
    for (int i = 0; i < lines; ++i) text += line;
    return text;
}

TEST_F(PointReaders, LongFilesTellTheirProgressEveryFourMillionBytes) {
    const std::string first = "88 3 1 1 x\n";
    for (const auto& [lines, expected] : {std::pair{79'999, 0}, std::pair{160'000, 2}}) {
        int calls = 0;
        aermet(first + fiftyCharacters("88 3 1 2 ", lines), InputKind::AermPfl, [&] { ++calls; });
        EXPECT_EQ(calls, expected);
    }
}

TEST_F(PointReaders, LongMonitorFilesTellTheirProgressEveryFourMillionBytes) {
    const std::string first = "DATETIME,STNCODE,DATAAVID\n1/1/2005 1:00:00,S,60\n";
    for (const auto& [lines, expected] : {std::pair{79'999, 0}, std::pair{160'000, 2}}) {
        int calls = 0;
        const MonitorHeader header =
            monitor(first + fiftyCharacters("1/1/2005 2:00:00,S,S,", lines), [&] { ++calls; });
        EXPECT_EQ(header.stations, std::vector<std::string>{"S"});
        EXPECT_EQ(calls, expected);
    }
}

const std::string tsfText =
    "TIMESERIES.TSF  1.3  a\r\n2 - comments\r\nc1\r\nc2\r\nskipped\r\nMET DATA\r\n"
    "Location: STATION ID = 14735 \r\nother\r\nUTC-0500 \r\nGREGORIAN_YMD\r\n"
    "2005 3 7 6 1815 2005 12 31 23 0 3600\r\n2 - variables\r\nWDIR deg\r\nWSPEED m/s\r\n";

TEST_F(PointReaders, ATimeSeriesHasItsPeriodAsWritten) {
    const TsfHeader header = tsf(tsfText);
    EXPECT_EQ(header.outcome, TsfOutcome::Read);
    EXPECT_EQ(header.station, "14735");
    EXPECT_EQ(header.timeZone, "UTC-0500");
    EXPECT_EQ(textOf(header.begin), "Mar 7, 2005 6:30:15 AM");
    EXPECT_EQ(textOf(header.end), "Dec 31, 2005 11:00:00 PM");
    EXPECT_EQ(header.stepSeconds, 3600);
}

std::string changed(std::string text, const std::string& from, const std::string& to) {
    return text.replace(text.find(from), from.size(), to);
}

TEST_F(PointReaders, TimeSeriesThatAreRefused) {
    EXPECT_EQ(tsf("x\n").outcome, TsfOutcome::NotTsf);
    EXPECT_EQ(tsf(changed(tsfText, "1.3", "1.2")).outcome, TsfOutcome::Refused);
    EXPECT_EQ(tsf(changed(tsfText, "GREGORIAN_YMD", "JULIAN")).outcome, TsfOutcome::Refused);
    EXPECT_EQ(tsf(changed(tsfText, "WSPEED", "SPEED")).outcome, TsfOutcome::NotMeteorological);
    EXPECT_EQ(errorOf([&] { tsf(changed(tsfText, "UTC-0500", "GMT")); }), 62);
    EXPECT_EQ(errorOf([&] { tsf(changed(tsfText, "2 - variables", "100000 - v")); }), 6);
    EXPECT_EQ(errorOf([&] { tsf(changed(tsfText, "6 1815", "24 0")); }), 13) << "hour 24 is no time here";
    EXPECT_EQ(text_, "line 11 (period): begin does not exist");
}

TEST_F(PointReaders, ATimeSeriesMayLackItsStation) {
    EXPECT_EQ(tsf(changed(tsfText, "Location: STATION ID = 14735 ", "")).station, "");
    EXPECT_EQ(tsf(changed(tsfText, "STATION ID", "STATION")).station, "");
}

}  // namespace
}  // namespace zg
