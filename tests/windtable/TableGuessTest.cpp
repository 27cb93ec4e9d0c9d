#include "windtable/TableGuess.h"

#include <gtest/gtest.h>

#include "tests/support/TempDirectory.h"
#include "windtable/TableTimes.h"

namespace zg {

namespace {

struct Table {
    explicit Table(std::string_view text) : path(directory.write("t.csv", text)) {}

    std::string taken() { return takenText(guessTable(path, wishes)); }

    TableLayout layout() { return guessTable(path, wishes).layout; }

    /// The fault without the path.
    std::string fault() {
        try {
            guessTable(path, wishes);
        } catch (const TableProblem& problem) {
            isWrongWish = problem.isWrongWish;
            return std::string(problem.what()).substr(path.size());
        }
        return "no fault";
    }

    TempDirectory directory;
    std::string path;
    TableWishes wishes;
    bool isWrongWish = false;
};

std::string takenOf(std::string_view text) { return Table(text).taken(); }
std::string faultIn(std::string_view text) { return Table(text).fault(); }

std::string keysText(const TableLayout& layout) {
    std::string text;
    for (const TableKey& key : keysOf(layout)) text += key.key + "=" + key.value + " ";
    return text;
}

std::string sample(const char* name) { return std::string(ZG_SOURCE_DIR "/tests/windtable/data/") + name; }

}  // namespace

TEST(TableGuess, TakesALoggersTableAndAPlainOneForTheSameWinds) {
    const TableFacts logger = guessTable(sample("mast_toa5.csv"), {});
    EXPECT_EQ(takenText(logger),
              "a table by COMMA, time \"Timestamp\" (day first, the begin of a record), speed \"Spd80mN\" in "
              "M/S at "
              "80 m, direction \"Dir78mS\", 100 records of 10 min from 2016-01-09 15:30 to 2016-01-10 09:20, "
              "UTC+0000; not \"Spd80mS\", \"Spd60mN\", \"Spd60mS\", \"Spd40mN\", \"Spd40mS\"");
    EXPECT_EQ(keysText(logger.layout),
              "CSVSEP=COMMA CSVDEC=POINT CSVHEAD=4 CSVNAME=2 CSVTIME=1 CSVFORM=DMY CSVSTMP=BEGIN CSVLEN=600 "
              "CSVSPD=5 CSVUNIT=M/S CSVDIR=23 CSVZONE=UTC+0000 ");
    const TableFacts plain = guessTable(sample("mast.csv"), {});
    EXPECT_EQ(keysText(plain.layout),
              "CSVSEP=COMMA CSVDEC=POINT CSVHEAD=1 CSVNAME=1 CSVTIME=1 CSVFORM=DMY CSVSTMP=BEGIN CSVLEN=600 "
              "CSVSPD=2 CSVUNIT=M/S CSVDIR=20 ");
    EXPECT_EQ(plain.records, logger.records);
    EXPECT_EQ(plain.begin, logger.begin);
    EXPECT_EQ(plain.end, logger.end);
    EXPECT_EQ(plain.height, 80);
    EXPECT_FALSE(plain.zone);
}

TEST(TableGuess, FindsDelimiterDecimalsAndUnits) {
    EXPECT_EQ(
        keysText(Table("Datum;Zeit;WS [km/h];WD\n01.02.2016;23:00;10;20\n02.02.2016;00:00;3,6;20\n"
                       "02.02.2016;01:00;3,6;20\n")
                     .layout()),
        "CSVSEP=SEMICOLON CSVDEC=COMMA CSVHEAD=1 CSVNAME=1 CSVTIME=1,2 CSVFORM=DMY CSVSTMP=BEGIN CSVLEN=3600 "
        "CSVSPD=3 CSVUNIT=KM/H CSVDIR=4 ");
    EXPECT_EQ(keysText(Table("year month day hour wd ws\n2016 1 1 0 350 1.5\n2016 1 1 1 350 1.5\n").layout()),
              "CSVSEP=BLANKS CSVDEC=POINT CSVHEAD=1 CSVNAME=1 CSVTIME=1,2,3,4 CSVFORM=PARTS CSVSTMP=BEGIN "
              "CSVLEN=3600 CSVSPD=6 CSVUNIT=M/S CSVDIR=5 ");
    EXPECT_EQ(
        keysText(Table("station,valid,drct,sknt\nABC,2016-01-01 00:53,350,M\nABC,2016-01-01 01:53,VRB,3\n")
                     .layout()),
        "CSVSEP=COMMA CSVDEC=POINT CSVHEAD=1 CSVNAME=1 CSVTIME=2 CSVFORM=YMD CSVSTMP=BEGIN CSVLEN=3600 "
        "CSVSPD=4 CSVUNIT=KNOTS CSVDIR=3 ");
    EXPECT_EQ(
        keysText(
            Table("ts\twind_speed\twind_dir\nUTC\tmph\tdeg\n1452353400\t1\t2\n1452354000\t1\t2\n").layout()),
        "CSVSEP=TAB CSVDEC=POINT CSVHEAD=2 CSVNAME=1 CSVTIME=1 CSVFORM=EPOCH CSVSTMP=BEGIN CSVLEN=600 "
        "CSVSPD=2 CSVUNIT=MPH CSVDIR=3 CSVZONE=UTC+0000 ");
}

TEST(TableGuess, TakesTheHighestSensorAndTheVaneNearestToIt) {
    const std::string row = "\n2016-01-01 00:00,1,2,3,4,5,6,7\n2016-01-01 01:00,1,2,3,4,5,6,7\n";
    const auto chosen = [&](const std::string& names) {
        const Table table("time," + names + row);
        const TableFacts facts = guessTable(table.path, {});
        return facts.speedName + " " + facts.directionName;
    };
    EXPECT_EQ(chosen("ws40,ws80,ws80b,wd40,wd78,wd90,x"), "ws80 wd78");
    EXPECT_EQ(chosen("ws_10m,ws_100m_max,WindGust120m,ws_50m_sd,wd_10m,wd_60m_std,x"), "ws_10m wd_10m");
    EXPECT_EQ(chosen("WindSpeed,WindDir,temp,a,b,c,d"), "WindSpeed WindDir");
    EXPECT_EQ(chosen("wind_speed_set_1,wind_direction_set_1,wind_gust_set_1,a,b,c,d"),
              "wind_speed_set_1 wind_direction_set_1");
}

TEST(TableGuess, DecidesTheOrderOfDatesByTheWholeFile) {
    const std::string head = "time,ws,wd\n";
    EXPECT_EQ(Table(head + "01/02/2016,1,2\n02/02/2016,1,2\n13/02/2016,1,2\n").layout().timeForm,
              TimeForm::DayFirst);
    EXPECT_EQ(Table(head + "02/01/2016,1,2\n02/02/2016,1,2\n02/13/2016,1,2\n").layout().timeForm,
              TimeForm::MonthFirst);
    EXPECT_EQ(Table(head + "01/02/2016,1,2\n02/02/2016,1,2\n03/02/2016,1,2\n").layout().timeForm,
              TimeForm::DayFirst);
    EXPECT_EQ(Table(head + "01/02/2016,1,2\n01/03/2016,1,2\n01/04/2016,1,2\n").layout().timeForm,
              TimeForm::MonthFirst);
    const std::string oneDay = head + "01/02/2016 00:00,1,2\n01/02/2016 01:00,1,2\n";
    EXPECT_EQ(
        faultIn(oneDay),
        ": the dates can be read in two ways: day first, from 2016-02-01 00:00 to 2016-02-01 01:00, or month "
        "first, from 2016-01-02 00:00 to 2016-01-02 01:00; --time-format dmy or mdy tells which");
    Table table(oneDay);
    table.wishes.timeForm = "mdy";
    EXPECT_EQ(table.layout().timeForm, TimeForm::MonthFirst);
    EXPECT_EQ(faultIn(head + "13/02/2016,1,2\n02/13/2016,1,2\n"),
              ":3: time: \"02/13/2016\" is no time, day first, as those before it");
}

TEST(TableGuess, TakesADayThatIsTheSameInBothOrders) {
    Table table("time,ws,wd\n05/05/2016 00:00,1,2\n05/05/2016 01:00,1,2\n05/05/2016 03:00,1,2\n");
    EXPECT_EQ(table.fault(), "no fault");
    const TableFacts facts = guessTable(table.path, {});
    EXPECT_EQ(timeText(facts.begin), "2016-05-05 00:00");
    EXPECT_EQ(timeText(facts.end), "2016-05-05 04:00");
    EXPECT_NE(faultIn("time,ws,wd\n05/05/2016 23:00,1,2\n06/05/2016 01:00,1,2\n"), "no fault");
}

// As milliseconds since 1970 the gaps within a day would be less than a second.
TEST(TableGuess, TakesCompactTimesWithGapsForDates) {
    std::string text = "time,ws,wd\n";
    for (const char* const day : {"20160109", "20160110", "20160111", "20160112"})
        for (int hour = 0; hour < 24; ++hour)
            if (hour != 7 && hour != 15)
                text += day + std::string(hour < 10 ? "0" : "") + std::to_string(hour) + "00,1,2\n";
    const Table table(text);
    const TableFacts facts = guessTable(table.path, {});
    EXPECT_EQ(facts.layout.timeForm, TimeForm::YearFirst);
    EXPECT_EQ(facts.layout.recordSeconds, 3600);
    EXPECT_EQ(timeText(facts.begin), "2016-01-09 00:00");
    EXPECT_EQ(timeText(facts.end), "2016-01-13 00:00");
}

TEST(TableGuess, TakesWhatItIsTold) {
    Table table("when|a|b|c\n2016-01-01 00:00|1|2|3\n2016-01-01 00:10|1|2|3\n");
    table.wishes.time = "WHEN";
    table.wishes.speed = "b";
    table.wishes.direction = "c";
    table.wishes.delimiter = '|';
    table.wishes.unit = WindUnit::Knots;
    table.wishes.missing = "-1";
    table.wishes.stampsEnd = true;
    EXPECT_EQ(
        keysText(table.layout()),
        "CSVSEP=| CSVDEC=POINT CSVHEAD=1 CSVNAME=1 CSVTIME=1 CSVFORM=YMD CSVSTMP=END CSVLEN=600 CSVSPD=3 "
        "CSVUNIT=KNOTS CSVDIR=4 CSVMISS=-1 ");
    EXPECT_EQ(timeText(guessTable(table.path, table.wishes).begin), "2015-12-31 23:50");
    EXPECT_EQ(timeText(guessTable(table.path, table.wishes).end), "2016-01-01 00:10");
}

TEST(TableGuess, TakesColumnsByNumberWhereThereAreNoNames) {
    Table table(
        "logger 7\n1,01.02.2016,00:00,3.5,270\n2,01.02.2016,00:10,3.5,270\n3,13.02.2016,00:20,3.5,270\n");
    EXPECT_NE(table.fault(), "no fault");
    table.wishes.time = "2,3";
    table.wishes.speed = "4";
    table.wishes.direction = "5";
    EXPECT_EQ(
        keysText(table.layout()),
        "CSVSEP=COMMA CSVDEC=POINT CSVHEAD=1 CSVNAME=0 CSVTIME=2,3 CSVFORM=DMY CSVSTMP=BEGIN CSVLEN=600 "
        "CSVSPD=4 CSVUNIT=M/S CSVDIR=5 ");
}

TEST(TableGuess, KnowsIsdLiteByItsLook) {
    const std::string hours =
        "2016 01 01 00    61    34 10134   320    46     0 -9999 -9999\n"
        "2016 01 01 01    56    28 10143 -9999     0     0 -9999 -9999\n";
    EXPECT_EQ(takenOf(hours),
              "ISD-Lite, 2 records of 1 h from 2016-01-01 00:00 to 2016-01-01 02:00, UTC+0000");
    EXPECT_EQ(keysText(Table(hours).layout()),
              "CSVSEP=BLANKS CSVDEC=POINT CSVHEAD=0 CSVNAME=0 CSVTIME=1,2,3,4 CSVFORM=PARTS CSVSTMP=BEGIN "
              "CSVLEN=3600 CSVSPD=9 CSVUNIT=DM/S CSVDIR=8 CSVZONE=UTC+0000 ");
    EXPECT_FALSE(isIsdLiteLine("2016 13 01 00 1 2 3 4 5 6 7 8"));
    EXPECT_FALSE(isIsdLiteLine("2016 12 01 00 1 2 3 4.0 5 6 7 8"));
    EXPECT_FALSE(isIsdLiteLine("2016 12 01 00 1 2 3 4 5 6 7"));
}

namespace {

constexpr std::string_view interleaved =
    "station,valid,drct,sknt\nJFK,2016-01-01 00:51,350,8\nLGA,2016-01-01 00:51,10,4\nJFK,2016-01-01 "
    "01:51,340,9\nLGA,2016-01-01 01:51,20,5\n";
constexpr std::string_view oneAfterTheOther =
    "valid,drct,sknt,stid\n2016-01-01 00:00,350,8,JFK\n2016-01-01 01:00,340,9,JFK\n2016-01-01 "
    "02:00,340,9,JFK\n2016-01-01 00:30,10,4,LGA\n2016-01-01 00:50,20,5,LGA\n";

}  // namespace

TEST(TableGuess, NamesTheStationsOfATableWithSeveral) {
    Table table(interleaved);
    EXPECT_EQ(table.fault(),
              ": the column \"station\" names 2 stations, whose times overlap or are not in order: \"JFK\", "
              "\"LGA\"; --station "
              "\"JFK\" takes one of them");
    EXPECT_TRUE(table.isWrongWish);
    EXPECT_EQ(faultIn(oneAfterTheOther),
              ": the column \"stid\" names 2 stations, whose times overlap or are not in order: \"JFK\", "
              "\"LGA\"; --station "
              "\"JFK\" takes one of them");
    const std::string alternate =
        "time,ws,wd,stn\n2016-01-01 00:00,1,2,A\n2016-01-01 00:30,1,2,B\n2016-01-01 01:00,1,2,A\n";
    EXPECT_TRUE(
        faultIn(alternate).ends_with(" names 2 stations, whose times overlap or are not in order: \"A\", "
                                     "\"B\"; --station \"A\" takes one of them"))
        << "although their order is right";
    std::string many = "site_id,time,ws,wd\n";
    for (int i = 1; i <= 25; ++i) many += "S" + std::to_string(i) + ",2016-01-01 00:00,1,2\n";
    EXPECT_TRUE(
        Table(many).fault().ends_with("\"S19\", \"S20\" and 5 more; --station \"S1\" takes one of them"))
        << Table(many).fault();
}

TEST(TableGuess, CountsNoMoreStationsThanItKeeps) {
    const auto faultOf = [](int count) {
        std::string many = "site_id,time,ws,wd\n";
        for (int i = 1; i <= count; ++i) many += "S" + std::to_string(i) + ",2016-01-01 00:00,1,2\n";
        return faultIn(many);
    };
    EXPECT_NE(faultOf(999).find(" names 999 stations,"), std::string::npos);
    EXPECT_NE(faultOf(999).find(" and 979 more;"), std::string::npos);
    EXPECT_NE(faultOf(1100).find(" names at least 1000 stations,"), std::string::npos);
    EXPECT_NE(faultOf(1100).find(" and at least 980 more;"), std::string::npos);
}

TEST(TableGuess, AStationIsFoundAndShownWhateverTheEncodingOfTheTable) {
    const std::string inUtf8 = "Z\xC3\xBCri";
    for (const std::string name : {"Z\xFCri", "Z\xC3\xBCri"}) {
        Table table("time,ws,wd,stn\n2016-01-01 00:00,1,2,B\n2016-01-01 00:00,1,2," + name +
                    "\n2016-01-01 01:00,1,2,B\n2016-01-01 01:00,1,2," + name + "\n");
        EXPECT_NE(table.fault().find("\"B\", \"" + inUtf8 + "\";"), std::string::npos) << table.fault();
        table.wishes.station = inUtf8;
        EXPECT_EQ(table.fault(), "no fault");
        EXPECT_EQ(table.layout().station, name) << "in the bytes of the table";
        EXPECT_NE(table.taken().find("station \"" + inUtf8 + "\", 2 records"), std::string::npos)
            << table.taken();
        table.wishes.station = "Z\xC3\xBCrich";
        EXPECT_EQ(
            table.fault(),
            ": --station: there is no station \"Z\xC3\xBCrich\"; the file has \"B\", \"" + inUtf8 + "\"");
    }
}

TEST(TableGuess, ALongValueIsShownUpToAWholeCharacter) {
    const std::string letters = std::string(39, 'a') +
                                "\xC3\xBC"
                                "b";
    EXPECT_NE(faultIn("time,ws,wd,stn\n2016-01-01 00:00,1,2,B\n2016-01-01 00:00,1,2," + letters + "\n")
                  .find(", \"" + std::string(39, 'a') + "...\";"),
              std::string::npos);
}

TEST(TableGuess, TakesTheStationThatIsAskedFor) {
    Table table(interleaved);
    table.wishes.station = "LGA";
    EXPECT_EQ(
        table.taken(),
        "a table by COMMA, time \"valid\" (year first, the begin of a record), speed \"sknt\" in KNOTS, "
        "direction \"drct\", station \"LGA\", 2 records of 1 h from 2016-01-01 00:51 to 2016-01-01 02:51, "
        "no zone named");
    EXPECT_EQ(keysText(table.layout()),
              "CSVSEP=COMMA CSVDEC=POINT CSVHEAD=1 CSVNAME=1 CSVTIME=2 CSVFORM=YMD CSVSTMP=BEGIN CSVLEN=3600 "
              "CSVSPD=4 CSVUNIT=KNOTS CSVDIR=3 CSVSTN=1 CSVID=LGA ");
    Table other(oneAfterTheOther);
    other.wishes.station = "LGA";
    EXPECT_EQ(other.layout().recordSeconds, 1200) << "each station has a length of its own";
    other.wishes.station = "EWR";
    EXPECT_EQ(other.fault(), ": --station: there is no station \"EWR\"; the file has \"JFK\", \"LGA\"");
    EXPECT_TRUE(other.isWrongWish);
}

TEST(TableGuess, WhatIsWrongWithAnotherStationMakesNoDifference) {
    Table table(
        "station,time,ws,wd\n-,UTC,mph,deg\nA,yesterday,4,y\nA\nB,2016-01-01 00:00,1,2\nA,,,\nB,2016-01-01 "
        "01:00,1,2\n");
    table.wishes.station = "B";
    EXPECT_EQ(table.fault(), "no fault");
    EXPECT_EQ(table.layout().unit, WindUnit::MilesAnHour) << "of the line of units, which names no station";
    EXPECT_EQ(table.layout().headLines, 2U);
}

TEST(TableGuess, ARepeatedHourOfTheStationIsNoOverlap) {
    Table table(
        "station,time,ws,wd\nA,2016-01-01 00:00,1,2\nB,2016-01-01 00:00,1,2\nA,2016-01-01 "
        "00:00,1,2\nA,2016-01-01 01:00,1,2\n");
    table.wishes.station = "A";
    EXPECT_EQ(table.fault(), "no fault");
    EXPECT_EQ(table.layout().recordSeconds, 3600);
}

TEST(TableGuess, AStationIsOnlyANameWhereTheTableHasOne) {
    for (const char* text : {"time,ws,wd\n2016-01-01 00:00,1,2\n2016-01-01 01:00,1,2\n",
                             "time,ws,wd,station\n2016-01-01 00:00,1,2,A\n2016-01-01 01:00,1,2,A\n"}) {
        Table table(text);
        for (const char* station : {"", "A", "S1"}) {
            table.wishes.station = station;
            EXPECT_EQ(table.fault(), "no fault") << text;
            EXPECT_EQ(table.layout().stationColumn, 0U) << text;
        }
    }
}

TEST(TableGuess, AStationThatFollowsAnotherIsTold) {
    Table table(
        "time,ws,wd,station\n2016-01-01 00:00,1,2,KJFK\n2016-01-01 01:00,1,2,KJFK\n2016-01-01 "
        "02:00,1,2,JFK\n");
    EXPECT_EQ(table.fault(), "no fault") << "perhaps it was only given another name";
    EXPECT_TRUE(table.taken().ends_with(
        "no zone named; stations one after the other (--station takes one): \"KJFK\", \"JFK\""))
        << table.taken();
}

TEST(TableGuess, SaysWhatIsWantingAndWhere) {
    EXPECT_EQ(faultIn("time,ws,temp\n2016-01-01 00:00,1,2\n"),
              ":1: the columns' names have no wind direction (--direction NAME): they are \"time\" \"ws\" "
              "\"temp\"");
    Table table("time,ws,wd\n2016-01-01 00:00,1,2\n");
    table.wishes.speed = "Spd";
    EXPECT_EQ(
        table.fault(),
        ":1: the columns' names have no wind speed \"Spd\" (--speed NAME): they are \"time\" \"ws\" \"wd\"");
    EXPECT_TRUE(table.isWrongWish);
    EXPECT_EQ(faultIn("a poem\nof two lines\n"),
              ": no line of names with a time, a wind speed and a wind direction is among its first 2 lines: "
              "this is "
              "no kind of file that is known");
    EXPECT_EQ(faultIn(std::string_view("\x7F"
                                       "ELF\0speed,1,2\n",
                                       15)),
              ": this is no text");
    EXPECT_EQ(faultIn("time,ws,wd\n"), ":1: there is no record after the columns' names");
    EXPECT_EQ(faultIn("time,ws,wd\n2016-01-01,1,2\nyesterday,1,2\n"),
              ":3: time: \"yesterday\" is no time, year first, as those before it");
    EXPECT_EQ(faultIn("time,ws,wd\n2016-01-01,1,2\n2016-01-02,1\n"),
              ":3: the line has 2 of at least 3 values");
    EXPECT_EQ(faultIn("time,ws,wd\n2016-01-01,1,2\n2016-01-01,1,2\n"),
              ": all records are of one time: how long they last is not known");
    EXPECT_EQ(faultIn("time,ws,wd\n2016-01-03,1,2\n2016-01-02,1,2\n"),
              ": the records run backwards in time: they need to be sorted");
    EXPECT_EQ(faultIn("time,ws,wd\n2016-01-03,1,2\n2016-01-04,1,2\n2016-01-05,1,2\n2015-12-05,1,2\n"),
              ": the last record, of 2015-12-05 00:00, is earlier than the first, of 2016-01-03 00:00: the "
              "records need to be sorted");
    EXPECT_EQ(faultIn("time,ws,wd\n2016-01-03,1,2\n2016-01-05,1,2\n"),
              ": the records lie 172800 seconds apart, more than a day");
    EXPECT_EQ(faultIn("time,ws,wd\nfirst,5,2\n2016-01-05,1,2\n"), ":2: time: \"first\" is no time");
    EXPECT_EQ(faultIn("time,ws,wd\n\"2016-01-05,1,2\n"), ":2: a quote is not closed");
}

}  // namespace zg
