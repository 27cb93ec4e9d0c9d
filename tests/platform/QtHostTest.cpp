#include "platform/QtHost.h"

#include <gtest/gtest.h>

#include <QTimer>

namespace zg {
namespace {

TEST(QtHost, FiltersKeepTheirPatternsAndLoseStrayBlanks) {
    const QStringList filters = nameFilters("Frequency File (*.frq) | *.frq; |All Files (*.*) | *.*");
    ASSERT_EQ(filters.size(), 2);
    EXPECT_EQ(filters[0], "Frequency File (*.frq)");
    EXPECT_EQ(filters[1], "All Files (*)");
}

TEST(QtHost, AFilterMayHaveSeveralPatterns) {
    EXPECT_EQ(nameFilters("JPEG (*.JPG,*.JPEG) | *.jpg; *.jpeg; |").value(0), "JPEG (*.jpg *.jpeg)");
}

TEST(QtHost, PumpingServesTimersAndReturnsAfterItsTime) {
    QtHost host;
    bool fired = false;
    QTimer::singleShot(1, [&fired] { fired = true; });
    const std::int64_t before = host.tickCount();
    while (host.tickCount() - before < 30) host.pumpEvents(10);
    EXPECT_TRUE(fired);
}

}  // namespace
}  // namespace zg
