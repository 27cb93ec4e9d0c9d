#include "shell/FrmAboutZephyrgraph.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "settings/Settings.h"

namespace zg {
namespace {

class AboutTest : public ::testing::Test {
 protected:
    void SetUp() override { settings = Settings(); }
};

TEST_F(AboutTest, NamesTheProgramAndItsVersion) {
    frmAboutZephyrgraph about;
    EXPECT_EQ(about.windowTitle(), "About Zephyrgraph");
    EXPECT_EQ(about.findChild<QLabel*>("lblVersion")->text(), "Version 4.9");
    EXPECT_EQ(about.findChild<QLabel*>("lblLevel")->text(), "April 6, 2011");
    EXPECT_TRUE(about.findChild<QLabel*>("lblCredits")->text().contains("MIT licence"));
}

TEST_F(AboutTest, TakesTheBoxOverOnUnloadAndNotBefore) {
    settings.DebugFlag = true;
    {
        frmAboutZephyrgraph about;
        about.show();
        auto* box = about.findChild<QCheckBox*>("chkDebug");
        EXPECT_TRUE(box->isChecked());
        box->click();
        EXPECT_TRUE(settings.DebugFlag);
        QTest::mouseClick(about.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        EXPECT_FALSE(about.isVisible());
    }
    EXPECT_FALSE(settings.DebugFlag);
    frmAboutZephyrgraph again;
    EXPECT_FALSE(again.findChild<QCheckBox*>("chkDebug")->isChecked());
}

TEST_F(AboutTest, EscapeUnloadsToo) {
    {
        frmAboutZephyrgraph about;
        about.show();
        about.findChild<QCheckBox*>("chkDebug")->setChecked(true);
        QTest::keyClick(&about, Qt::Key_Escape);
        EXPECT_FALSE(about.isVisible());
    }
    EXPECT_TRUE(settings.DebugFlag);
}

}  // namespace
}  // namespace zg
