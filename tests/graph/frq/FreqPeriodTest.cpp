#include "graph/frq/FreqPeriod.h"

#include <gtest/gtest.h>

#include <string>

#include "base/RunTimeError.h"

namespace zg {
namespace {

const FreqVersion& versionOf(std::string_view name) {
    for (const FreqVersion& version : freqVersions)
        if (version.name == name) return version;
    throw std::string(name);
}

std::string periodOf(std::string_view version, std::string_view line) {
    std::string text;
    readFreqPeriod(line, versionOf(version), text);
    return text;
}

int errorOf(std::string_view version, std::string_view line) {
    try {
        periodOf(version, line);
    } catch (const RunTimeError& error) {
        return error.number;
    }
    return 0;
}

TEST(FreqPeriod, WholeHoursAreTwoDigits) {
    EXPECT_EQ(periodOf("2.0", "2001 1 1 0 2001 12 31 23"), "Jan 1, 2001 - HR00 to Dec 31, 2001 - HR23");
    EXPECT_EQ(periodOf("2.1", "  2001  01 01   7 2001 12 31 07 "),
              "Jan 1, 2001 - HR07 to Dec 31, 2001 - HR07");
}

TEST(FreqPeriod, Hour24IsTheNextDay) {
    EXPECT_EQ(periodOf("2.0", "2001 1 1 1 2001 12 31 24"), "Jan 1, 2001 - HR01 to Jan 1, 2002 - HR00");
    EXPECT_EQ(periodOf("2.1", "2000 2 28 24 2001 2 28 23"), "Feb 29, 2000 - HR00 to Feb 28, 2001 - HR23");
    EXPECT_EQ(periodOf("2.2", "2001 1 31 24 0 2001 12 31 24 0"),
              "Feb 1, 2001 - 12:00:00 AM to Jan 1, 2002 - 12:00:00 AM");
    EXPECT_EQ(periodOf("2.3", "2001 1 1 24 60 2001 12 30 24 3599 utc"),
              "Jan 2, 2001 - 12:01:00 AM to Dec 31, 2001 - 12:59:59 AM (UTC)");
}

TEST(FreqPeriod, Hour24IsTestedAsText) {
    EXPECT_EQ(periodOf("2.0", "2001 1 1 024 2001 12 31 24.0"), "Jan 1, 2001 - HR24 to Dec 31, 2001 - HR24");
}

TEST(FreqPeriod, SecondsAreCutIntoMinutesAndSeconds) {
    EXPECT_EQ(periodOf("2.2", "2001 1 1 1 0 2001 12 31 13 1805"),
              "Jan 1, 2001 - 1:00:00 AM to Dec 31, 2001 - 1:30:05 PM");
}

TEST(FreqPeriod, AFullHourOfSecondsBeginsTheSameHour) {
    EXPECT_EQ(periodOf("2.2", "2001 1 1 1 3600 2001 12 31 22 3661"),
              "Jan 1, 2001 - 1:00:00 AM to Dec 31, 2001 - 10:01:01 PM");
}

TEST(FreqPeriod, TheZoneIsInUpperCase) {
    EXPECT_EQ(periodOf("2.3", "2001 1 1 0 0 2001 12 31 12 0 utc-0500"),
              "Jan 1, 2001 - 12:00:00 AM to Dec 31, 2001 - 12:00:00 PM (UTC-0500)");
    EXPECT_EQ(periodOf("2.2", "2001 1 1 0 0 2001 12 31 12 0 utc-0500"),
              "Jan 1, 2001 - 12:00:00 AM to Dec 31, 2001 - 12:00:00 PM");
}

TEST(FreqPeriod, YearsOfTwoDigitsHaveTheirCentury) {
    EXPECT_EQ(periodOf("2.0", "29 1 1 0 30 1 1 0"), "Jan 1, 2029 - HR00 to Jan 1, 1930 - HR00");
}

TEST(FreqPeriod, AMissingTokenIsOutOfRange) {
    EXPECT_EQ(errorOf("2.0", ""), 9);
    EXPECT_EQ(errorOf("2.0", "2001 1 1 0 2001 12 31"), 9);
    EXPECT_EQ(errorOf("2.2", "2001 1 1 0 0 2001 12 31 23"), 9);
    EXPECT_EQ(errorOf("2.3", "2001 1 1 0 0 2001 12 31 23 0"), 9);
}

TEST(FreqPeriod, WhatIsNoDateHourOrTimeIsATypeMismatch) {
    EXPECT_EQ(errorOf("2.0", "2001 2 29 0 2001 12 31 0"), 13);
    EXPECT_EQ(errorOf("2.0", "2001 13 1 0 2001 12 31 0"), 13);
    EXPECT_EQ(errorOf("2.0", "year 1 1 0 2001 12 31 0"), 13);
    EXPECT_EQ(errorOf("2.0", "2001 1 1 noon 2001 12 31 0"), 13);
    EXPECT_EQ(errorOf("2.2", "2001 1 1 25 0 2001 12 31 0 0"), 13);
    EXPECT_EQ(errorOf("2.2", "2001 1 1 0 -60 2001 12 31 0 0"), 13);
    EXPECT_EQ(errorOf("2.2", "2001 1 1 0 x 2001 12 31 0 0"), 13);
    EXPECT_EQ(errorOf("2.2", "2001 1 1 0 0 2001 12 31 0 99999999999"), 6);
}

TEST(FreqPeriod, AMissingZoneLeavesTheTextMadeSoFar) {
    std::string text = "old";
    EXPECT_THROW(readFreqPeriod("2001 1 1 0 0 2001 12 31 12 0", versionOf("2.3"), text), RunTimeError);
    EXPECT_EQ(text, "Jan 1, 2001 - 12:00:00 AM to Dec 31, 2001 - 12:00:00 PM");
}

TEST(FreqPeriod, ABadDateLeavesTheOldText) {
    std::string text = "old";
    EXPECT_THROW(readFreqPeriod("2001 1 1 0 2001 2 30 0", versionOf("2.0"), text), RunTimeError);
    EXPECT_EQ(text, "old");
}

}  // namespace
}  // namespace zg
