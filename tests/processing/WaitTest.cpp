#include "processing/Wait.h"

#include <gtest/gtest.h>

#include "tests/support/TestHost.h"

namespace {

using namespace zg;

TEST(WaitMsTest, ServesEventsUntilTheClockHasMovedOn) {
    TestHost host;
    host.now = 123456;
    WaitMs(host, 500);
    EXPECT_GE(host.now, 123956);
    EXPECT_GT(host.pumps, 0);
}

/// Its pump returns early, as it does when events keep arriving.
class BusyHost : public TestHost {
 public:
    void pumpEvents(int idleMs) override {
        idles.push_back(idleMs);
        now += 200;
    }
    std::vector<int> idles;
};

TEST(WaitMsTest, GoesOnWaitingForWhatIsLeft) {
    BusyHost host;
    WaitMs(host, 500);
    EXPECT_EQ(host.idles, (std::vector<int>{500, 300, 100}));
}

TEST(WaitMsTest, AWaitWithinAWaitIsServed) {
    TestHost host;
    std::vector<std::int64_t> ends;
    host.onPump = [&] {
        if (!ends.empty()) return;
        ends.push_back(0);
        WaitMs(host, 1000);
        ends.push_back(host.now);
    };
    WaitMs(host, 300);
    ends.push_back(host.now);
    EXPECT_EQ(ends, (std::vector<std::int64_t>{0, 1300, 1300}));
}

TEST(WaitMsTest, IsOverAtOnceWhenItIsNoLongerWanted) {
    BusyHost host;
    WaitMs(host, 500, [&host] { return host.idles.size() == 2; });
    EXPECT_EQ(host.idles, (std::vector<int>{500, 300}));
    WaitMs(host, 500, [] { return true; });
    EXPECT_EQ(host.idles.size(), 2U);
}

TEST(WaitMsTest, NoTimeIsNoWait) {
    TestHost host;
    WaitMs(host, 0);
    WaitMs(host, -5);
    EXPECT_EQ(host.pumps, 0);
}

TEST(WaitMsTest, OneMillisecondStillServesEvents) {
    TestHost host;
    WaitMs(host, 1);
    EXPECT_EQ(host.pumps, 1);
}

}  // namespace
