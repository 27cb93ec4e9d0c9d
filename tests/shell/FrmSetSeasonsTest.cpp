#include "shell/FrmSetSeasons.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QTest>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/FieldMarks.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmSetSeasonsTest : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        open();
    }

    void open() {
        form_ = std::make_unique<frmSetSeasons>(host_);
        form_->show();
    }

    QComboBox* season(int month) {
        return form_->findChild<QComboBox*>(QStringLiteral("cboSeason_%1").arg(month));
    }
    QLineEdit* custom(int month) {
        return form_->findChild<QLineEdit*>(QStringLiteral("txtCustomSeason_%1").arg(month));
    }
    void press(const char* name) {
        QTest::mouseClick(form_->findChild<QPushButton*>(QString::fromLatin1(name)), Qt::LeftButton);
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmSetSeasons> form_;
};

TEST_F(FrmSetSeasonsTest, ShowsTheFactorySeasonsAtFirst) {
    EXPECT_EQ(form_->windowTitle(), " Set Seasons for Generating Wind Roses from Meteorological Data");
    EXPECT_EQ(season(0)->currentText(), "Winter");
    EXPECT_EQ(season(2)->currentText(), "Spring");
    EXPECT_EQ(season(7)->currentText(), "Summer");
    EXPECT_EQ(season(10)->currentText(), "Fall");
    EXPECT_EQ(season(11)->currentText(), "Winter");
    EXPECT_EQ(season(0)->count(), 4) << "no fifth entry is offered";
    EXPECT_FALSE(season(0)->isEditable());
    EXPECT_FALSE(custom(0)->isEnabled());
    EXPECT_EQ(spoken(form_->findChild<QLabel*>("lblMonth_8")->text()), "September:");
}

TEST_F(FrmSetSeasonsTest, AllMonthsOfOneSeasonAreOneSeason) {
    for (int month = 0; month < 12; ++month) season(month)->setCurrentText("Summer");
    press("cmdOk");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(settings.SeasonCount, 1);
    EXPECT_EQ(settings.SeasonNames[0], "Summer");
    EXPECT_EQ(settings.MonthSeasonString, "1,1,1,1,1,1,1,1,1,1,1,1");
}

TEST_F(FrmSetSeasonsTest, NumbersGoByTheFirstMonthFromJanuary) {
    season(0)->setCurrentText("Fall");
    press("cmdOk");
    EXPECT_EQ(settings.SeasonCount, 4);
    EXPECT_EQ(settings.SeasonNames[0], "Fall");
    EXPECT_EQ(settings.SeasonNames[1], "Winter");
    EXPECT_EQ(settings.MonthSeasonIndex[1], 2);
    EXPECT_EQ(settings.MonthSeasonString, "1,2,3,3,3,4,4,4,1,1,1,2");
}

TEST_F(FrmSetSeasonsTest, WhatIsAcceptedIsKept) {
    season(5)->setCurrentText("Spring");
    press("cmdOk");
    open();
    EXPECT_EQ(season(5)->currentText(), "Spring");
}

TEST_F(FrmSetSeasonsTest, CancelAfterDefaultsStoresNothing) {
    season(5)->setCurrentText("Spring");
    press("cmdOk");
    open();
    press("cmdDefaults");
    EXPECT_EQ(season(5)->currentText(), "Summer");
    press("cmdCancel");
    EXPECT_EQ(settings.SeasonOfMonth[5], "Spring");
    open();
    EXPECT_EQ(season(5)->currentText(), "Spring");
}

TEST_F(FrmSetSeasonsTest, EnterOnCancelCancels) {
    season(0)->setCurrentText("Fall");
    form_->activateWindow();
    auto* cancel = form_->findChild<QPushButton*>("cmdCancel");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(settings.SeasonOfMonth[0], "Winter");
}

TEST_F(FrmSetSeasonsTest, TheStartAcceptsItUnseen) {
    frmSetSeasons unseen(host_);
    settings.SeasonCount = 0;
    unseen.Form_Load();
    unseen.cmdOK_Click();
    EXPECT_FALSE(unseen.isVisible());
    EXPECT_EQ(settings.SeasonCount, 4);
    EXPECT_EQ(settings.MonthSeasonString, "1,1,2,2,2,3,3,3,4,4,4,1");
}

TEST_F(FrmSetSeasonsTest, TabGoesThroughTheMonthsInOrder) {
    form_->activateWindow();
    season(0)->setFocus();
    QTest::keyClick(season(0), Qt::Key_Tab);
    EXPECT_EQ(form_->focusWidget(), season(1)) << "past the disabled box";
}

TEST_F(FrmSetSeasonsTest, EscapeCancels) {
    season(0)->setCurrentText("Fall");
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(settings.SeasonOfMonth[0], "Winter");
}

TEST_F(FrmSetSeasonsTest, AStoredCustomTextEnablesItsBoxAndPickingASeasonDisablesIt) {
    settings.CustomSeasonOfMonth[3] = "Monsoon";
    WriteCfgFile(settings.CfgFilePath);
    open();
    EXPECT_TRUE(custom(3)->isEnabled());
    EXPECT_EQ(custom(3)->text(), "Monsoon");
    season(3)->setCurrentText("Fall");
    EXPECT_FALSE(custom(3)->isEnabled());
    press("cmdDefaults");
    EXPECT_EQ(custom(3)->text(), "");
}

TEST_F(FrmSetSeasonsTest, PickingTheSameSeasonAgainDisablesItsBoxToo) {
    settings.CustomSeasonOfMonth[3] = "Monsoon";
    WriteCfgFile(settings.CfgFilePath);
    open();
    season(3)->setFocus();
    season(3)->showPopup();
    QTest::keyClick(season(3)->view(), Qt::Key_Return);
    EXPECT_EQ(season(3)->currentText(), "Spring");
    EXPECT_FALSE(custom(3)->isEnabled());
}

TEST_F(FrmSetSeasonsTest, AStoredSeasonThatIsNotOfferedLeavesTheMonthsDefault) {
    settings.SeasonOfMonth[6] = "Harmattan";
    WriteCfgFile(settings.CfgFilePath);
    open();
    EXPECT_EQ(season(6)->currentText(), "Summer");
}

TEST_F(FrmSetSeasonsTest, ACustomSeasonWithoutANameIsRefused) {
    season(4)->addItem("CUSTOM");
    season(4)->setCurrentText("CUSTOM");
    EXPECT_TRUE(custom(4)->isEnabled());
    host_.boxAnswers = {BoxAnswer::Ok};
    press("cmdOk");
    EXPECT_TRUE(form_->isVisible());
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Please enter a CUSTOM season name.");
    EXPECT_EQ(host_.boxes[0].title, "Error");
    EXPECT_EQ(fieldMark(*custom(4)), yellowMark);
    EXPECT_EQ(settings.SeasonOfMonth[4], "Spring") << "nothing has changed";
    custom(4)->setText(" Monsoon ");
    press("cmdOk");
    EXPECT_EQ(settings.SeasonNames[2], "Monsoon");
    EXPECT_EQ(settings.CustomSeasonOfMonth[4], " Monsoon ") << "kept untrimmed";
}

}  // namespace
}  // namespace zg
