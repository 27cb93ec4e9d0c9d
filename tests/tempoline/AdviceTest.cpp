#include "tempoline/Advice.h"

#include <gtest/gtest.h>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

std::vector<std::string> advice(Seconds length, Seconds spacing, Seconds step) {
    RecordCounts records;
    for (int i = 0; i < 3; ++i) {
        records.spacing.add(spacing);
        records.length.add(length);
    }
    Control control = dayControl();
    control.step = step;
    return adviceOn(records, control);
}

}  // namespace

TEST(Advice, RecordsThatFollowEachOtherNeedNone) {
    for (const Seconds length : {60, 600, 3600}) EXPECT_TRUE(advice(length, length, 3600).empty()) << length;
    EXPECT_TRUE(advice(0, 600, 3600).empty());
    EXPECT_TRUE(advice(0, 3600, 3600).empty());
    EXPECT_TRUE(advice(600, 1200, 3600).empty()) << "half is enough";
}

TEST(Advice, GapsBetweenRecordsAreToldWithTheBestStep) {
    const std::string end = " of the steps of 3600 seconds can be valid. Choose a step of ";
    EXPECT_EQ(advice(0, 43200, 3600),
              std::vector<std::string>{"the records begin 43200 seconds apart and are of a moment: at most "
                                       "8.3 percent" +
                                       end + "43200 seconds (NSECDT = 43200): 100.0 percent"});
    EXPECT_EQ(advice(3600, 43200, 3600),
              std::vector<std::string>{"the records begin 43200 seconds apart and last 3600 seconds: at most "
                                       "8.3 percent" +
                                       end + "7200 seconds (NSECDT = 7200): 16.7 percent"});
    EXPECT_EQ(advice(600, 1800, 3600),
              std::vector<std::string>{"the records begin 1800 seconds apart and last 600 seconds: at most "
                                       "0.0 percent" +
                                       end + "1200 seconds (NSECDT = 1200): 66.7 percent"});
    EXPECT_NE(advice(0, 10 * secondsADay, 3600).at(0).find("(NSECDT = 86400): 10.0 percent"),
              std::string::npos);
    EXPECT_TRUE(advice(3600, 43200, 7200).empty()) << "there is no better step";
    EXPECT_TRUE(adviceOn(RecordCounts(), dayControl()).empty());
}

TEST(Advice, AClockThatGoesHalfAStepOtherwise) {
    RecordCounts records;
    records.misaligned = 24;
    records.misalignment = 900;
    EXPECT_EQ(adviceOn(records, dayControl()),
              std::vector<std::string>{"24 records of a whole step begin within one, the first of them 900 "
                                       "seconds after its begin, and each "
                                       "counts for the step in which it begins. Choose a period that begins "
                                       "with a record, as at 00:15:00, or "
                                       "a time zone that is whole steps away from that of the data"});
}

TEST(CommonValue, IsTheOneAddedMostOften) {
    CommonValue values;
    EXPECT_TRUE(values.isEmpty());
    EXPECT_EQ(values.commonest(), 0);
    for (const int value : {7, 5, 7, 5, 5, 9, 7}) values.add(value);
    EXPECT_EQ(values.commonest(), 5) << "of equals the smaller";
    values.add(7);
    EXPECT_EQ(values.commonest(), 7);
    for (int value = 100; value < 10'000; ++value) values.add(value);
    EXPECT_EQ(values.commonest(), 7);
}

}  // namespace zg::tempoline
