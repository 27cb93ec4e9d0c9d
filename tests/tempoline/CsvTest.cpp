// Tables of winds, from the text of a file to the counts of its rose.

#include <gtest/gtest.h>

#include "base/Lines.h"
#include "tempoline/Run.h"
#include "tempoline/readers/Reader.h"
#include "tests/support/Gzip.h"
#include "tests/tempoline/TempolineSupport.h"
#include "windtable/TableGuess.h"

namespace zg::tempoline {

namespace {

/// The hours of a leap day (UTC+0000) from a table.
struct CsvReading {
    CsvReading() {
        control.kind = InputKind::Csv;
        control.table.timeColumns = {1};
        control.table.speedColumn = 2;
        control.table.directionColumn = 3;
        control.table.headLines = 1;
        control.table.namesLine = 1;
    }

    const RoseCounts& of(const std::string& rows) { return ofBytes("time,ws,wd\n" + rows); }

    const RoseCounts& ofBytes(const std::string& bytes) {
        path = directory.write("in.csv", bytes);
        series.clear();
        series.emplace_back(control);
        reader = makeReader(control);
        reader->read(path, series);
        series[0].finish();
        return series[0].table().roses()[0];
    }

    std::string failure(const std::string& rows) {
        const std::string message = failureOf([&] { of(rows); });
        return message.substr(path.size() + 1);
    }

    Control control = dayControl();
    TempDirectory directory;
    std::string path;
    std::vector<Series> series;
    std::unique_ptr<InputReader> reader;
};

const std::string hour0 = "2004-02-29 00:00,";
const std::string hour1 = "2004-02-29 01:00,";
const std::string hour2 = "2004-02-29 02:00,";

std::string controlOf(const TableFacts& facts, const std::string& input, const std::string& moreKeys = {}) {
    std::string text =
        "TEMPOLINE.INP\nmast\n! MDATA = CSV !\n! NAQINP = 0 !\n! MROSE = 1 !\n! NMETINP = 1 !\n! METINP = " +
        input +
        " !\n! NTSFOUT = 1 !\n! TSFID = 1 !\n! TSFOUT = out !\n! TSFID = 1 !\n! MET = mast, 0, 0, 80, -1, "
        "-1, -1 !\n"
        "! IBYR = 2016 !\n! IBMO = 1 !\n! IBDY = 9 !\n! IBHR = 15 !\n! IBSEC = 1800 !\n"
        "! IEYR = 2016 !\n! IEMO = 1 !\n! IEDY = 10 !\n! IEHR = 9 !\n! IESEC = 1200 !\n"
        "! ABTZ = UTC+0000 !\n! NSECDT = 600 !\n! WSBIN = 0.5,1.8,3.3,5.4,8.5,10.8 !\n! NSEASN = 1 !\n"
        "! IDSEAS = 1 !\n! SEASNAME = Winter !\n! MSN = 1,1,1,1,1,1,1,1,1,1,1,1 !\n! NTPD = 1 !\n! HR = "
        "01,06 !\n";
    for (const TableKey& key : keysOf(facts.layout)) text += "! " + key.key + " = " + key.value + " !\n";
    return text + moreKeys;
}

/// The TAB file from the first rose on.
std::string rosesOf(const InDirectory& inside, const std::string& sample, bool zipped = false) {
    const std::string bytes = readWholeFile(ZG_SOURCE_DIR "/tests/windtable/data/" + sample);
    const std::string input = zipped ? sample + ".gz" : sample;
    const std::string path = inside.directory.write(input, zipped ? gzipped(bytes) : bytes);
    inside.directory.write("c.inp", controlOf(guessTable(path, {}), input));
    EXPECT_EQ(run("c.inp"), ExitStatus::Completed);
    const std::string tab = inside.directory.read("out.tab");
    return tab.substr(tab.find("Rose: "));
}

}  // namespace

TEST(Csv, ALoggersTableAndAPlainOneGiveTheSameRoses) {
    const InDirectory inside;
    const std::string roses = rosesOf(inside, "mast.csv");
    EXPECT_EQ(rosesOf(inside, "mast_toa5.csv"), roses);
    EXPECT_EQ(rosesOf(inside, "mast_toa5.csv", true), roses);
    // Counted by hand from the columns Spd80mN and Dir78mS.
    EXPECT_NE(roses.find("Total: 107\r\nValid: 100\r\nCalm: 0\r\n"), std::string::npos) << roses;
    EXPECT_NE(
        roses.find(
            "   NE           0           0           0           9           7           0          16"),
        std::string::npos)
        << roses;
    EXPECT_NE(
        roses.find(
            "  SSW           0           0           0          10           2           1          13"),
        std::string::npos);
}

TEST(Csv, MissingWordsAndVariableDirectionsCountAsWhatTheyAre) {
    CsvReading reading;
    const RoseCounts& rose = reading.of(hour0 + "M,90\n" + hour1 + "0.3,VRB\n" + hour2 +
                                        "3,VRB\n2004-02-29 03:00,0,0\n2004-02-29 04:00,-9999,90\n"
                                        "2004-02-29 05:00,3,90\n\n,,\n   \n");
    EXPECT_EQ(rose.valid, 3);
    EXPECT_EQ(rose.calm, 2);
    EXPECT_EQ(rose.cells[4][1], 1);
    EXPECT_EQ(reading.series[0].records().noSpeed, 2);
    EXPECT_EQ(reading.series[0].records().noDirection, 1);
}

TEST(Csv, SpeedsOfOtherUnitsBecomeMetresASecondWithoutNoise) {
    CsvReading reading;
    reading.control.table.unit = WindUnit::KilometresAnHour;
    EXPECT_EQ(reading.of(hour0 + "6.48,90\n").cells[4][1], 1);  // 1.8 m/s is the second class's first speed
    reading.control.table.unit = WindUnit::Knots;
    EXPECT_EQ(reading.of(hour0 + "3.5,90\n").cells[4][1], 1);
    EXPECT_EQ(reading.of(hour0 + "3.4,90\n").cells[4][0], 1);
    reading.control.table.unit = WindUnit::TenthsOfMetresASecond;
    EXPECT_EQ(reading.of(hour0 + "33,90\n").cells[4][2], 1);
}

TEST(Csv, TimesAreMovedToTheZoneOfTheRun) {
    CsvReading reading;
    reading.control.zone = "UTC-0500";
    reading.control.zoneOffset = -5 * secondsAnHour;
    EXPECT_EQ(reading.of("2004-02-29 04:00Z,3,90\n2004-02-29 05:00Z,3,90\n").valid, 1);
    EXPECT_EQ(reading.of("2004-02-29 04:00,3,90\n2004-02-29 05:00,3,90\n").valid, 2);
    reading.control.table.zone = 0;
    EXPECT_EQ(reading.of("2004-02-29 04:00,3,90\n2004-02-29 05:00,3,90\n").valid, 1);
}

TEST(Csv, AStampMayBeTheEndOfItsRecord) {
    CsvReading reading;
    EXPECT_EQ(reading.of("2004-02-29 00:00,3,90\n2004-03-01 00:00,3,90\n").valid, 1);
    reading.control.table.stampsEnd = true;
    EXPECT_EQ(reading.of("2004-02-29 00:00,3,90\n2004-03-01 00:00,3,90\n").valid, 1);
    EXPECT_EQ(reading.series[0].records().lastUsed.line, 3U);
}

TEST(Csv, AReportWithinAnHourCutsTheOneBeforeOff) {
    CsvReading reading;
    // 15 minutes of 10 m/s and 45 minutes of 2 m/s: 4 m/s on average.
    const std::string rows = hour0 + "10,90\n2004-02-29 00:15,2,90\n" + hour1 + "3,180\n";
    EXPECT_EQ(reading.of(rows).cells[4][2], 1);
    EXPECT_EQ(reading.series[0].records().used, 3);
    reading.control.table.stampsEnd = true;
    EXPECT_EQ(reading.of(hour1 + "9,180\n2004-02-29 01:15,10,90\n" + hour2 + "2,90\n").cells[4][2], 1);
}

TEST(Csv, RepeatedTimesCountOnceTheFirst) {
    for (const bool stampsEnd : {false, true}) {
        CsvReading reading;
        reading.control.table.stampsEnd = stampsEnd;
        EXPECT_EQ(reading.of(hour1 + "3,90\n" + hour1 + "4,180\n" + hour1 + "4,180\n" + hour2 + "3,90\n")
                      .cells[4][1],
                  2);
        EXPECT_EQ(reading.series[0].records().duplicate, 2);
        EXPECT_EQ(reading.series[0].records().firstDuplicate, reading.path + ":3");
    }
}

TEST(Csv, SaysWhatIsWrongWithLineAndColumn) {
    CsvReading reading;
    EXPECT_EQ(reading.failure(hour0 + "fast,90\n"), "2: column 2 (ws): \"fast\" is no speed");
    EXPECT_EQ(reading.failure(hour0 + "3,90\n" + hour1 + "3,NNW\n"),
              "3: column 3 (wd): \"NNW\" is no direction");
    EXPECT_EQ(reading.failure("29/02/2004,3,90\n"),
              "2: column 1 (time): \"29/02/2004\" is no time, year first");
    EXPECT_EQ(reading.failure(hour0 + "3\n"), "2: the line has 2 of at least 3 values");
    EXPECT_EQ(reading.failure("\"2004,3,4\n"), "2: a quote is not closed");
    EXPECT_EQ(reading.failure(hour1 + "3,90\n" + hour0 + "3,90\n"),
              "3: time: records are out of order: 2004-02-29 00:00:00 follows 2004-02-29 01:00:00");
    reading.control.table.headLines = 5;
    EXPECT_EQ(reading.failure(hour0 + "3,90\n"),
              "2: the file ends within the 5 lines before its first record");
}

TEST(Csv, OfSeveralStationsOnlyOneIsRead) {
    CsvReading reading;
    reading.control.table.stationColumn = 4;
    reading.control.table.station = "B";
    const std::string rows =
        hour0 + "3,90,A\n" + hour0 + "4,90,B\n" + hour1 + "fast,90,A\n" + "never\n" + hour1 + "5,90,B\n";
    EXPECT_EQ(reading.of(rows).valid, 2);
    reading.control.table.station = "A";
    EXPECT_EQ(reading.failure(rows), "4: column 2 (ws): \"fast\" is no speed");
}

TEST(Csv, AStationThatNoLineHasIsTold) {
    CsvReading reading;
    reading.control.table.stationColumn = 4;
    reading.control.table.station = "C";
    const std::string rows = hour0 + "3,90,A\n" + hour0 + "4,90,B\n";
    EXPECT_EQ(reading.failure(rows), " no line has \"C\" in column 4, where CSVSTN expects the stations");
    reading.control.table.station = "B";
    reading.control.table.stationColumn = 3;
    EXPECT_EQ(reading.failure(rows),
              " no line has \"B\" in column 3 (wd), where CSVSTN expects the stations");
    reading.control.table.stationColumn = 5;
    EXPECT_EQ(reading.failure(rows), " no line has \"B\" in column 5, where CSVSTN expects the stations");
    reading.control.table.stationColumn = 4;
    EXPECT_EQ(reading.of(rows).valid, 1);
}

TEST(Csv, ADamagedGzipFileIsTold) {
    CsvReading reading;
    const std::string zipped = gzipped("time,ws,wd\n" + hour0 + "3,90\n");
    EXPECT_EQ(reading.ofBytes(zipped).valid, 1);
    EXPECT_EQ(failureOf([&] { reading.ofBytes(zipped.substr(0, zipped.size() - 3)); }),
              reading.path + ": the compressed data are cut off");
}

TEST(Csv, TheControlFileSaysWhatIsWrongWithALayout) {
    const TableFacts facts = guessTable(ZG_SOURCE_DIR "/tests/windtable/data/mast.csv", {});
    const auto fault = [&](const std::string& key, const std::string& value) {
        const InDirectory inside;
        std::string text = controlOf(facts, "none.csv");
        const std::size_t at = text.find("! " + key + " =");
        if (at != std::string::npos) text.erase(at, text.find('\n', at) + 1 - at);
        if (!value.empty()) text += "! " + key + " = " + value + " !\n";
        inside.directory.write("c.inp", text);
        testing::internal::CaptureStderr();
        EXPECT_EQ(run("c.inp"), ExitStatus::BadControl) << key << value;
        const std::string error = testing::internal::GetCapturedStderr();
        return error.substr(error.find(key));
    };
    EXPECT_EQ(fault("CSVTIME", ""), "CSVTIME: the key is missing\n");
    EXPECT_EQ(fault("CSVSPD", "0"), "CSVSPD: 0 is not between 1 and 4096\n");
    EXPECT_EQ(fault("CSVDIR", "x"), "CSVDIR: \"x\" is no whole number\n");
    EXPECT_EQ(fault("CSVSEP", "12"), "CSVSEP: COMMA, SEMICOLON, TAB, BLANKS or one character is needed\n");
    EXPECT_EQ(fault("CSVDEC", "COMMA"), "CSVDEC: a comma cannot part the values too\n");
    EXPECT_EQ(fault("CSVUNIT", "FURLONGS"), "CSVUNIT: M/S, KNOTS, KM/H, MPH or DM/S is needed\n");
    EXPECT_EQ(fault("CSVFORM", "DDMMYY"),
              "CSVFORM: YMD, DMY, MDY, PARTS, EPOCH or a pattern as %d.%m.%Y %H:%M is needed\n");
    EXPECT_EQ(fault("CSVTIME", "1,2,3"), "CSVTIME: 3 columns are no time of the form DMY\n");
    EXPECT_EQ(fault("CSVSTMP", "MIDDLE"), "CSVSTMP: BEGIN or END is needed\n");
    EXPECT_EQ(fault("CSVLEN", "90000"), "CSVLEN: 90000 is not between 1 and 86400\n");
    EXPECT_EQ(fault("CSVID", "A"), "CSVID: it needs a CSVSTN\n");
    EXPECT_EQ(fault("CSVZONE", "EST"), "CSVZONE: \"EST\" is no zone such as UTC-0500\n");
}

}  // namespace zg::tempoline
