#include "shell/FrmSplashScreen.h"

#include <gtest/gtest.h>

#include <QTest>

#include "tests/support/TestHost.h"

namespace zg {
namespace {

class SplashTest : public ::testing::Test {
 protected:
    SplashTest()
        : splash_(host_, [this] {
              ++shown_;
              shownAt_ = host_.now;
          }) {}

    /// What the user does at the start of the wait.
    void runWith(const std::function<void()>& act) {
        bool acted = false;
        host_.onPump = [&] {
            if (acted) return;
            acted = true;
            act();
        };
        splash_.run();
    }

    TestHost host_;
    int shown_ = 0;
    std::int64_t shownAt_ = 0;
    frmSplashScreen splash_;
};

TEST_F(SplashTest, WaitsItsTimeAndShowsTheMainWindowOnce) {
    runWith([this] {
        EXPECT_TRUE(splash_.isVisible());
        EXPECT_FALSE(splash_.isModal());
    });
    EXPECT_EQ(shown_, 1);
    EXPECT_GE(shownAt_, 1750);
    EXPECT_FALSE(splash_.isVisible());
    EXPECT_FALSE(splash_.splashClicked());
    EXPECT_EQ(splash_.findChild<QLabel*>("lblVersion")->text(), "Version 4.9");
    EXPECT_EQ(splash_.findChild<QLabel*>("lblLevel")->text(), "April 6, 2011");
}

TEST_F(SplashTest, AClickInItsFirstMillisecondShowsTheMainWindowOnce) {
    runWith([this] {
        QTest::mouseClick(&splash_, Qt::LeftButton);
        EXPECT_EQ(shown_, 1) << "at once";
        EXPECT_FALSE(splash_.isVisible());
        QTest::mouseClick(&splash_, Qt::LeftButton);
    });
    EXPECT_EQ(shown_, 1);
    EXPECT_TRUE(splash_.splashClicked());
}

TEST_F(SplashTest, ClosingItIsNoClickAndTheMainWindowStillComes) {
    runWith([this] {
        splash_.close();
        EXPECT_EQ(shown_, 0);
    });
    EXPECT_FALSE(splash_.splashClicked());
    EXPECT_EQ(shown_, 1);
    EXPECT_GE(shownAt_, 1750);
}

TEST_F(SplashTest, KeysAreNoClick) {
    runWith([this] {
        QTest::keyClick(&splash_, Qt::Key_Alt);
        QTest::keyClick(&splash_, Qt::Key_Space);
        EXPECT_EQ(shown_, 0);
    });
    EXPECT_FALSE(splash_.splashClicked());
    EXPECT_EQ(shown_, 1);
}

}  // namespace
}  // namespace zg
