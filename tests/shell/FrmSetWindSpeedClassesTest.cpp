#include "shell/FrmSetWindSpeedClasses.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTest>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/FieldMarks.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmClassesTest : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        open();
    }

    void open() {
        form_ = std::make_unique<frmSetWindSpeedClasses>(host_);
        form_->show();
        form_->activateWindow();
    }

    QLineEdit* box(int row) {
        return form_->findChild<QLineEdit*>(QStringLiteral("txtWindSpeedClassMin_%1").arg(row));
    }
    QString label(int row) {
        return form_->findChild<QLabel*>(QStringLiteral("lblWindSpeedClassMax_%1").arg(row))->text();
    }
    void press(const char* name) {
        QTest::mouseClick(form_->findChild<QPushButton*>(QString::fromLatin1(name)), Qt::LeftButton);
    }
    void fill(const QStringList& texts) {
        for (int row = 0; row < texts.size(); ++row) box(row)->setText(texts[row]);
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmSetWindSpeedClasses> form_;
};

TEST_F(FrmClassesTest, ShowsTheStoredMinimaAndTheirEchoes) {
    EXPECT_EQ(form_->windowTitle(), " Set Wind Speed Class Range Limits");
    EXPECT_EQ(box(0)->text(), "0.5");
    EXPECT_EQ(box(5)->text(), "10.8");
    EXPECT_EQ(label(1), "1.8 m/s");
}

TEST_F(FrmClassesTest, AnEchoFollowsItsBoxAtEachKey) {
    box(2)->clear();
    EXPECT_EQ(label(2), " m/s");
    QTest::keyClicks(box(2), "4.2");
    EXPECT_EQ(label(2), "4.2 m/s");
}

TEST_F(FrmClassesTest, OnlyNumbersCanBeTyped) {
    box(0)->clear();
    QTest::keyClicks(box(0), "a-1x.5,");
    EXPECT_EQ(box(0)->text(), "-1.5");
    QTest::keyClick(box(0), Qt::Key_Backspace);
    EXPECT_EQ(box(0)->text(), "-1.");
    QApplication::clipboard()->setText("pasted");
    box(0)->clear();
    QTest::keyClick(box(0), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box(0)->text(), "pasted") << "the filter is one of typed keys";
}

TEST_F(FrmClassesTest, EnterGoesOnToTheNextField) {
    box(0)->setFocus();
    QTest::keyClick(box(0), Qt::Key_Return);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(form_->focusWidget(), box(1));
}

TEST_F(FrmClassesTest, EnterOnAButtonPressesThatButton) {
    fill({"1", "2", "3", "4", "5", "6"});
    form_->activateWindow();
    auto* fallback = form_->findChild<QPushButton*>("cmdDefault");
    fallback->setFocus();
    QTest::keyClick(fallback, Qt::Key_Return);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(box(0)->text(), "0.5");
    box(0)->setText("0.1");
    auto* cancel = form_->findChild<QPushButton*>("cmdCancel");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(settings.WindClassMin[0], "0.5");
}

TEST_F(FrmClassesTest, DefaultTakesTheMarkOffAnEmptyBox) {
    box(3)->clear();
    host_.boxAnswers = {BoxAnswer::Ok};
    press("cmdOK");
    EXPECT_EQ(fieldMark(*box(3)), yellowMark);
    press("cmdDefault");
    EXPECT_EQ(fieldMark(*box(3)), cleanMark);
    EXPECT_EQ(box(3)->text(), "5.4");
}

TEST_F(FrmClassesTest, EqualMinimaPass) {
    fill({"1", "1", "2", "3", "4", "5"});
    press("cmdOK");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(settings.WindClassString, "1,1,2,3,4,5");
    EXPECT_EQ(settings.WindClassMin[0], "1");
}

TEST_F(FrmClassesTest, ADisorderedPairIsMarkedAndNamed) {
    fill({"2", "1", "3", "4", "5", "6"});
    host_.boxAnswers = {BoxAnswer::Ok};
    press("cmdOK");
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(host_.boxes[0].text,
              "The Wind Speed Class 1 minimum range value must be less than that of Wind Speed Class 2.");
    EXPECT_EQ(host_.boxes[0].title, "Error");
    EXPECT_EQ(fieldMark(*box(0)), yellowMark);
    EXPECT_EQ(settings.WindClassMin[0], "0.5") << "nothing has changed";
    box(0)->setText("0.1");
    press("cmdOK");
    EXPECT_EQ(fieldMark(*box(0)), cleanMark);
}

TEST_F(FrmClassesTest, AnEmptyBoxIsToldBeforeAnyOrder) {
    fill({"2", "1", "3", "4", "5", ""});
    host_.boxAnswers = {BoxAnswer::Ok};
    press("cmdOK");
    EXPECT_EQ(host_.boxes[0].text, "Please enter a minimum value for the wind speed range.");
    EXPECT_EQ(fieldMark(*box(5)), yellowMark);
    EXPECT_EQ(fieldMark(*box(0)), cleanMark);
}

TEST_F(FrmClassesTest, ANegativeMinimumPassesInOrder) {
    fill({"-1", "1", "3", "4", "5", "6"});
    press("cmdOK");
    EXPECT_EQ(settings.WindClassString, "-1,1,3,4,5,6");
}

TEST_F(FrmClassesTest, WhatIsNoNumberIsToldAndStoresNothing) {
    fill({"1", "-", "3", "4", "5", "6"});
    host_.boxAnswers = {BoxAnswer::Ok};
    press("cmdOK");
    EXPECT_EQ(host_.boxes[0].title, "Error");
    EXPECT_EQ(host_.boxes[0].text, "Type mismatch");
    EXPECT_EQ(settings.WindClassString, "0.5,1.8,3.3,5.4,8.5,10.8");
}

TEST_F(FrmClassesTest, DefaultFillsTheBoxesAndStoresNothing) {
    fill({"1", "2", "3", "4", "5", "6"});
    press("cmdOK");
    open();
    press("cmdDefault");
    EXPECT_EQ(box(0)->text(), "0.5");
    press("cmdCancel");
    EXPECT_EQ(settings.WindClassMin[0], "1");
}

TEST_F(FrmClassesTest, EscapeCancels) {
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

}  // namespace
}  // namespace zg
