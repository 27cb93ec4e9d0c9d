#include "headers/SurfHeader.h"

#include <gtest/gtest.h>

#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

const std::string head20 = "SURF.DAT        2.0             Hour Start and End Times with Seconds\r\n";
const std::string head21 = "SURF.DAT        2.1             Hour Start and End Times with Seconds\r\n";

std::string momentText(DateTime moment) { return formatDate(moment) + " " + longTime(timeOf(moment)); }

class SurfHeaderTest : public ::testing::Test {
 protected:
    SurfHeader read(const std::string& text) {
        SurfHeader header;
        HeaderSource source(text, "s.dat");
        readSurfHeader(source, header);
        return header;
    }
    int errorOf(const std::string& text) {
        try {
            read(text);
        } catch (const HeaderError& error) {
            where_ = error.where;
            text_ = messageOf(error);
            notice_ = error.notice;
            return error.number;
        }
        return 0;
    }

    TempDirectory directory_;
    std::string where_;
    std::string text_;
    std::string notice_;
};

TEST_F(SurfHeaderTest, Version21HasSecondsAndItsZone) {
    const SurfHeader header =
        read(head21 +
             "2\r\nfirst\r\nsecond\r\nNONE\r\n UTC-0500 \r\n"
             "  1990   8  0 1800  1990  15 23  3599   2\r\n  14606\r\n  14611\r\nrecords\r\n");
    EXPECT_EQ(header.outcome, SurfOutcome::Read);
    EXPECT_EQ(header.timeZone, "UTC-0500");
    EXPECT_EQ(momentText(header.begin), "Jan 8, 1990 12:30:00 AM");
    EXPECT_EQ(momentText(header.end), "Jan 15, 1990 11:59:59 PM");
    EXPECT_EQ(header.stations, (std::vector<std::string>{"14606", "14611"}));
}

TEST_F(SurfHeaderTest, Version20BeginsAnHourEarlierAndEndsAsWritten) {
    SurfHeader header = read(head20 + "0\r\nNONE\r\n1990 8 1 1990 15 23 5.0 1\r\n14606\r\n");
    EXPECT_EQ(momentText(header.begin), "Jan 8, 1990 12:00:00 AM");
    EXPECT_EQ(momentText(header.end), "Jan 15, 1990 11:00:00 PM");
    EXPECT_EQ(header.timeZone, "UTC-0500");
    header = read(head20 + "0\r\nNONE\r\n1990 8 0 1990 15 23 -3.0 1\r\n14606\r\n");
    EXPECT_EQ(momentText(header.begin), "Jan 7, 1990 11:00:00 PM");
    EXPECT_EQ(header.timeZone, "UTC+0300");
}

TEST_F(SurfHeaderTest, Hour24IsMidnightOfTheNextDay) {
    const SurfHeader header = read(head21 + "0\r\nNONE\r\nUTC+0000\r\n1990 59 24 0 1990 365 24 0 0\r\n");
    EXPECT_EQ(momentText(header.begin), "Mar 1, 1990 12:00:00 AM");
    EXPECT_EQ(momentText(header.end), "Jan 1, 1991 12:00:00 AM");
}

TEST_F(SurfHeaderTest, AnotherKindOrVersionIsNoHeader) {
    EXPECT_EQ(read("surf.dat        2.1\r\n").outcome, SurfOutcome::NotSurf) << "its case counts";
    EXPECT_EQ(read("UP.DAT          2.1\r\n").outcome, SurfOutcome::NotSurf);
    EXPECT_EQ(read("SURF.DAT        2.2\r\n").outcome, SurfOutcome::UnknownVersion);
}

TEST_F(SurfHeaderTest, AVersionThatDoesNotEndAtColumn19Fails) {
    EXPECT_EQ(read("SURF.DAT       2.1              x\r\n").outcome, SurfOutcome::UnknownVersion);
}

TEST_F(SurfHeaderTest, AHeaderCutAtAnyLineIsTheEndOfTheFile) {
    const std::vector<std::string> lines = {head21,      "1\r\n",        "comment\r\n",
                                            "NONE\r\n",  "UTC-0500\r\n", "1990 8 0 0 1990 15 23 0 2\r\n",
                                            "14606\r\n", "14611\r\n"};
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        EXPECT_EQ(errorOf(text), &line == &lines.back() ? 0 : 62) << text;
        if (&line != &lines.back()) {
            EXPECT_TRUE(text_.ends_with(": the file ends here")) << text_;
        }
    }
    EXPECT_EQ(errorOf(""), 62);
}

TEST_F(SurfHeaderTest, FaultyFieldsAreErrorsWithTheirLine) {
    const auto withPeriod = [](const std::string& period) {
        return head21 + "0\r\nNONE\r\nUTC-0500\r\n" + period + "\r\n14606\r\n";
    };
    EXPECT_EQ(errorOf(withPeriod("1990 x 0 0 1990 15 23 0 1")), 13);
    EXPECT_EQ(where_, "5");
    EXPECT_EQ(text_, "line 5 (period): day of the year \"x\" is not a number");
    EXPECT_EQ(errorOf(withPeriod("1990 8 0 0 1990 15 23 0")), 9) << "a field is missing";
    EXPECT_EQ(text_, "line 5 (period): number of stations is missing");
    EXPECT_EQ(errorOf(withPeriod("1990 8 0 0 1990 15 23 0 100000")), 6);
    EXPECT_EQ(text_, "line 5 (period): number of stations \"100000\" is out of range");
    EXPECT_EQ(errorOf(withPeriod("1990 8 25 0 1990 15 23 0 1")), 13);
    EXPECT_EQ(text_, "line 5 (period): begin does not exist");
    EXPECT_EQ(notice_, "");
    EXPECT_EQ(errorOf(head21 + "x\r\n"), 13);
    EXPECT_EQ(where_, "2");
}

TEST_F(SurfHeaderTest, ADayOutOfItsYearHasItsNotice) {
    for (const char* day : {"0", "366", "400"}) {
        EXPECT_EQ(
            errorOf(head21 + "0\r\nNONE\r\nUTC-0500\r\n1990 " + day + " 0 0 1990 15 23 0 1\r\n14606\r\n"),
            13);
        EXPECT_EQ(notice_, "Error in VBGRDAY: invalid date.");
        EXPECT_EQ(text_, "line 5 (period): begin does not exist");
    }
}

TEST_F(SurfHeaderTest, ANegativeNumberOfStationsIsNone) {
    EXPECT_TRUE(
        read(head21 + "0\r\nNONE\r\nUTC-0500\r\n1990 8 0 0 1990 15 23 0 -1\r\n14606\r\n").stations.empty());
}

TEST_F(SurfHeaderTest, ANegativeNumberOfCommentsIsNone) {
    EXPECT_EQ(
        read(head21 + "-3\r\nNONE\r\nUTC-0500\r\n1990 8 0 0 1990 15 23 0 1\r\n14606\r\n").stations.size(),
        1U);
}

TEST_F(SurfHeaderTest, AMissingFileIsAnError) {
    try {
        HeaderSource source(directory_.file("no.dat"));
        FAIL();
    } catch (const HeaderError& error) {
        EXPECT_EQ(error.number, 53);
        EXPECT_EQ(error.place.file, "no.dat");
        EXPECT_EQ(messageOf(error), "File not found");
    }
}

TEST_F(SurfHeaderTest, OneLineFollowsTheCommentsEvenOfANegativeCount) {
    for (const char* count : {"0", "-1", "-5"}) {
        const SurfHeader header =
            read(head21 + count + "\r\nNONE\r\nUTC-0500\r\n1990 8 0 0 1990 15 23 0 1\r\n14606\r\n");
        EXPECT_EQ(header.timeZone, "UTC-0500") << count;
        EXPECT_EQ(header.stations, std::vector<std::string>{"14606"});
    }
}

TEST_F(SurfHeaderTest, WhatWasReadBeforeAnErrorStays) {
    const std::string upToPeriod = head21 + "0\r\nNONE\r\nUTC-0500\r\n";
    SurfHeader header;
    const auto readInto = [&](const std::string& text) {
        HeaderSource source(text, "s.dat");
        readSurfHeader(source, header);
        return 0;
    };
    EXPECT_RAISES(62, "Input past end of file",
                  readInto(upToPeriod + "1990 8 0 0 1990 15 23 0 3\r\n14606\r\n"));
    EXPECT_TRUE(header.stationsReached);
    EXPECT_EQ(header.stations, std::vector<std::string>{"14606"});
    EXPECT_EQ(header.outcome, SurfOutcome::UnknownVersion);
    EXPECT_RAISES(13, "Type mismatch", readInto(upToPeriod + "1990 8 0 0 1990 15 23 0 x\r\n14606\r\n"));
    EXPECT_FALSE(header.stationsReached) << "each reading begins anew";
    EXPECT_TRUE(header.stations.empty());
}

}  // namespace
}  // namespace zg
