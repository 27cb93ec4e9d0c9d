#include "tempoline/Series.h"

#include <gtest/gtest.h>

#include "tempoline/Interrupt.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

class SeriesTest : public testing::Test {
 protected:
    SeriesTest() : path_(directory_.write("a", "1\n2\n")), place_(path_) { place_.need("a line"); }

    Seconds at(int minutes) const { return control_.begin + 60 * minutes; }
    void add(Series& series, int from, int to, Wind wind) { series.add(at(from), at(to), wind, place_); }
    const RoseCounts& all(Series& series) {
        series.finish();
        return series.table().roses()[0];
    }

    Control control_ = dayControl();
    TempDirectory directory_;
    std::string path_;
    LineSource place_;
};

TEST_F(SeriesTest, ARecordAsLongAsTheStepPassesThrough) {
    Series series(control_);
    add(series, 0, 60, {5.4, 11.25});
    add(series, 60, 120, {5.399999, 360});
    EXPECT_EQ(all(series).cells[1][3], 1);
    EXPECT_EQ(all(series).cells[0][2], 1);
    EXPECT_EQ(all(series).total, 24);
    EXPECT_EQ(all(series).valid, 2);
}

TEST_F(SeriesTest, ShorterRecordsAreAveraged) {
    Series series(control_);
    add(series, 0, 30, {2, 350});
    add(series, 30, 60, {4, 10});  // 3 m/s from 0
    EXPECT_EQ(all(series).cells[0][1], 1);
}

TEST_F(SeriesTest, HalfAStepIsEnoughAndLessIsNot) {
    Series series(control_);
    add(series, 0, 30, {2, 90});
    add(series, 60, 89, {2, 90});
    EXPECT_EQ(all(series).valid, 1);
}

TEST_F(SeriesTest, InvalidRecordsCoverNothing) {
    Series series(control_);
    add(series, 0, 20, {2, 90});
    add(series, 20, 60, {2, missingValue});
    EXPECT_EQ(all(series).valid, 0);
    EXPECT_EQ(series.records().used, 1);
    EXPECT_EQ(series.records().missing, 1);
}

TEST_F(SeriesTest, OppositeWindsPointNowhere) {
    Series series(control_);
    add(series, 0, 30, {2, 90});
    add(series, 30, 60, {2, 270});
    EXPECT_EQ(all(series).valid, 0);
}

TEST_F(SeriesTest, CalmsTakePartInTheSpeedAlone) {
    Series series(control_);
    add(series, 0, 30, {0, missingValue});
    add(series, 30, 60, {4, 180});
    EXPECT_EQ(all(series).cells[8][1], 1);
}

TEST_F(SeriesTest, ARecordOverTwoStepsTakesPartInBoth) {
    Series series(control_);
    add(series, 0, 40, {2, 90});
    add(series, 40, 80, {2, 90});
    add(series, 80, 120, {2, 90});
    EXPECT_EQ(all(series).cells[4][1], 2);
}

TEST_F(SeriesTest, AMomentStandsForItsStep) {
    Series series(control_);
    add(series, 0, 0, {2, 80});
    add(series, 59, 59, {4, 100});
    EXPECT_EQ(all(series).cells[4][1], 1);
    EXPECT_EQ(all(series).valid, 1);
}

TEST_F(SeriesTest, WhatIsOutsideThePeriodIsCountedOnly) {
    Series series(control_);
    add(series, -60, 0, {2, 90});
    add(series, 24 * 60, 25 * 60, {2, 90});
    EXPECT_FALSE(series.hasRecords());
    EXPECT_EQ(series.records().outside, 2);
    EXPECT_EQ(all(series).valid, 0);
}

TEST_F(SeriesTest, TheFirstOfTwoWithOneTimeCounts) {
    Series series(control_);
    add(series, 0, 60, {2, 90});
    add(series, 0, 60, {9, 180});
    EXPECT_EQ(series.records().duplicate, 1);
    EXPECT_EQ(series.records().firstDuplicate, path_ + ":1");
    EXPECT_EQ(all(series).cells[4][1], 1);
}

TEST_F(SeriesTest, WhyRecordsAndStepsAreMissing) {
    Series series(control_);
    add(series, -60, 0, {2, 90});
    add(series, 0, 60, {missingValue, 90});
    add(series, 60, 120, {91, 90});
    add(series, 120, 180, {2, missingValue});
    add(series, 180, 240, {2, 361});
    series.add(at(240), at(300), {}, place_, MissingReason::NoLevel);
    add(series, 300, 329, {2, 90});
    add(series, 360, 390, {2, 90});
    add(series, 390, 420, {2, 270});
    add(series, 420, 480, {2, 90});
    add(series, 24 * 60, 25 * 60, {2, 90});
    series.finish();
    const RecordCounts& records = series.records();
    EXPECT_EQ(records.noSpeed, 1);
    EXPECT_EQ(records.wrongSpeed, 1);
    EXPECT_EQ(records.noDirection, 1);
    EXPECT_EQ(records.wrongDirection, 1);
    EXPECT_EQ(records.noLevel, 1);
    EXPECT_EQ(records.missing, 5);
    EXPECT_EQ(records.outside, 2);
    EXPECT_EQ(records.early, 1);
    EXPECT_EQ(records.firstUsed.begin, at(300));
    EXPECT_EQ(records.firstUsed.end, at(329));
    EXPECT_EQ(records.firstUsed.path, path_);
    EXPECT_EQ(records.firstUsed.line, 1U);
    EXPECT_EQ(records.lastUsed.begin, at(420));
    const StepCounts& steps = series.steps();
    EXPECT_EQ(steps.total, 24);
    EXPECT_EQ(steps.valid, 1);
    EXPECT_EQ(steps.noWind, 5);
    EXPECT_EQ(steps.tooShort, 1);
    EXPECT_EQ(steps.noDirection, 1);
    EXPECT_EQ(steps.noRecord, 16);
}

TEST_F(SeriesTest, WholeRecordsThatBeginWithinAStepAreCounted) {
    Series series(control_);
    add(series, 30, 90, {2, 90});
    add(series, 90, 150, {2, 90});
    add(series, 180, 240, {2, 90});
    add(series, 250, 280, {2, 90});
    EXPECT_EQ(series.records().misaligned, 2);
    EXPECT_EQ(series.records().misalignment, 1800);
    EXPECT_EQ(series.records().length.commonest(), 3600);
}

TEST_F(SeriesTest, DisorderIsAFailure) {
    Series series(control_);
    add(series, 60, 120, {2, 90});
    EXPECT_EQ(failureOf([&] {
                  add(series, 0, 60, {2, 90});
              }),
              path_ + ":1: time: records are out of order: 2004-02-29 00:00:00 follows 2004-02-29 01:00:00");
    EXPECT_EQ(failureOf([&] {
                  add(series, 90, 150, {2, 90});
              }),
              path_ +
                  ":1: time: the record of 2004-02-29 01:30:00 begins before the last one ends, 2004-02-29 "
                  "02:00:00");
    EXPECT_EQ(failureOf([&] {
                  add(series, 200, 261, {2, 90});
              }),
              path_ + ":1: time: the record of 3660 seconds is longer than the step of 3600");
    EXPECT_EQ(failureOf([&] {
                  add(series, 200, 199, {2, 90});
              }),
              path_ + ":1: time: the record ends before it begins");
}

TEST_F(SeriesTest, ARecordAtFaultIsNotCounted) {
    Series series(control_);
    add(series, 60, 120, {2, 90});
    add(series, 60, 120, {2, 90});
    EXPECT_NE(failureOf([&] { add(series, 0, 60, {2, 90}); }), "");
    EXPECT_EQ(series.records().read, 2);
}

TEST_F(SeriesTest, AnInterruptEndsTheFillingUpOfSteps) {
    control_.step = 1;
    Series behind(control_);
    Series between(control_);
    add(behind, 0, 0, {2, 90});
    setInterrupted(true);
    EXPECT_EQ(failureOf([&] { behind.finish(); }, ExitStatus::Interrupted), "interrupted");
    EXPECT_EQ(failureOf([&] { add(between, 600, 600, {2, 90}); }, ExitStatus::Interrupted), "interrupted");
    setInterrupted(false);
}

TEST_F(SeriesTest, SeasonsGoByBeginsAndHoursByEnds) {
    control_.end = momentOf(2004, 3, 1, 1, 0);
    Series series(control_);
    for (int hour = 0; hour < 25; ++hour) add(series, 60 * hour, 60 * hour + 60, {2, 90});
    series.finish();
    const std::vector<RoseCounts>& roses = series.table().roses();
    ASSERT_EQ(roses.size(), 5U);
    EXPECT_EQ(roses[1].total, 24);  // the leap day is in winter
    EXPECT_EQ(roses[2].total, 1);   // and steps that begin on March 1 are in spring
    EXPECT_EQ(roses[3].title, "Hours 01-12");
    EXPECT_EQ(roses[3].total, 13);
    EXPECT_EQ(roses[4].title, "Hours 13-00");
    EXPECT_EQ(roses[4].total, 12);
}

}  // namespace zg::tempoline
