// Curves that take long to draw, stopped from the window. Each reading of the clock takes 20 ms, so that
// drawing does take long.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>

#include "tests/shell/MainWindow.h"

namespace zg {
namespace {

class SlowCurves : public ActiveMainWindow {
 protected:
    void plotCurve(const char* formula, std::int64_t tick) {
        child<QComboBox>("cmbFunction")->setEditText(QString::fromLatin1(formula));
        host_.tick = tick;
        QTest::mouseClick(child("cmdPlot"), Qt::LeftButton);
        host_.tick = 0;
    }
    int rows() { return child<QTreeWidget>("lvwTable")->topLevelItemCount(); }
};

TEST_F(SlowCurves, EscapeEndsOneWhereverTheKeyboardIs) {
    child("cmdPlot")->setFocus();
    host_.onPump = [this] {
        EXPECT_FALSE(child("tblToolbar_open")->isEnabled());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    };
    plotCurve("2", 20);
    EXPECT_EQ(host_.pumps, 1);
    EXPECT_EQ(rows(), 1) << "the list shows what the plot holds";
    EXPECT_TRUE(plot().StopAni());
    EXPECT_TRUE(child("tblToolbar_open")->isEnabled());
}

TEST_F(SlowCurves, StopOfThePopUpEndsOne) {
    plotCurve("2", 0);
    child<QTreeWidget>("lvwTable")->topLevelItem(0)->setSelected(true);
    QAction* stop = window_->menuAction("mnuGraphOption_7");
    QMenu* menu = window_->menuAction("mnuGraph")->menu();
    host_.onPump = [&] {
        menu->popup(QPoint(0, 0));
        menu->hide();
        ASSERT_TRUE(stop->isEnabled());
        EXPECT_FALSE(window_->menuAction("mnuGraphOption_2")->isEnabled()) << "Delete";
        stop->trigger();
    };
    host_.tick = 20;
    plot().DrawGraph();
    EXPECT_EQ(host_.pumps, 1);
}

TEST_F(SlowCurves, ClosingTheWindowEndsAllOfThem) {
    plotCurve("2", 0);
    plotCurve("3", 0);
    child<QTreeWidget>("lvwTable")->selectAll();
    host_.onPump = [this] { window_->close(); };
    host_.tick = 20;
    window_->mnuGraphOption_Click(6);
    plot().Refresh();
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(host_.pumps, 1) << "nothing more is drawn";
}

TEST_F(SlowCurves, OneEscapeEndsAllOfPlay) {
    plotCurve("2", 0);
    plotCurve("3", 0);
    child<QTreeWidget>("lvwTable")->topLevelItem(0)->setSelected(true);
    host_.onPump = [this] { QTest::keyClick(window_.get(), Qt::Key_Escape); };
    host_.tick = 20;
    window_->mnuGraphOption_Click(6);
    EXPECT_EQ(host_.pumps, 1) << "the second curve is not begun";
    EXPECT_TRUE(plot().StopAni());
}

TEST_F(SlowCurves, TheButtonPlotDoesNothingWhileItIsAtWork) {
    int presses = 0;
    host_.onPump = [&] {
        if (++presses == 1) QTest::mouseClick(child("cmdPlot"), Qt::LeftButton);
        if (presses == 3) plot().StopAni(true);
    };
    plotCurve("2", 20);
    EXPECT_EQ(plot().Plot().Count(), 1);
    EXPECT_EQ(rows(), 1);
    host_.onPump = {};
    plotCurve("3", 0);
    EXPECT_EQ(rows(), 2);
}

TEST_F(SlowCurves, OneBeyondTheLimitIsToldByItsFormula) {
    host_.boxAnswers = {BoxAnswer::Ok};
    plotCurve("2+0*t", 200);
    EXPECT_EQ(host_.boxes[0].text,
              "Run-time error '32811':\n\nThe script ran out of time: more than 30 seconds for one curve: "
              "'2+0*t'");
    EXPECT_EQ(rows(), 1);
    EXPECT_TRUE(child("tblToolbar_open")->isEnabled());
}

TEST_F(SlowCurves, ATableIsStoppedLikewise) {
    plotCurve("2", 0);
    child<QTreeWidget>("lvwTable")->topLevelItem(0)->setSelected(true);
    host_.onPump = [this] {
        EXPECT_FALSE(child("tblToolbar_open")->isEnabled());
        QTest::keyClick(window_.get(), Qt::Key_Escape);
    };
    host_.tick = 20;
    window_->mnuGraphOption_Click(9);
    EXPECT_EQ(host_.pumps, 1);
    EXPECT_FALSE(child("pgbProgressBar")->isVisible());
    EXPECT_TRUE(child("tblToolbar_open")->isEnabled());
    EXPECT_TRUE(plot().StopAni());
}

}  // namespace
}  // namespace zg
