// The menus, toolbars and lists of the main window, operated as a user does.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QProgressBar>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "base/Paths.h"
#include "settings/CfgFile.h"
#include "tests/shell/MainWindow.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

class FrmMainCommands : public MainWindow {
 protected:
    void choose(const char* name) { entry(name).trigger(); }

    /// Answers the next modal dialog.
    void withDialog(std::function<void(QDialog&)> act) {
        QTimer::singleShot(0, [this, act = std::move(act)] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialogSeen_ = dialog->objectName();
            act(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
    }

    QString dialogSeen_;
};

TEST_F(FrmMainCommands, ToolbarAndToolboxCanBeHidden) {
    EXPECT_TRUE(window_->menuAction("mnuViewToolbar")->isChecked());
    const int before = child("pgPolarGraph")->height();
    choose("mnuViewToolbar");
    EXPECT_FALSE(child("tblToolbar")->isVisible());
    QApplication::processEvents();
    EXPECT_GT(child("pgPolarGraph")->height(), before) << "the plot takes the place";
    choose("mnuViewToolbox");
    EXPECT_FALSE(child("fraToolbox")->isVisible());
    choose("mnuViewToolbar");
    EXPECT_TRUE(child("tblToolbar")->isVisible());
}

TEST_F(FrmMainCommands, RulersFollowTheirEntry) {
    EXPECT_TRUE(plot().ShowRuler()) << "the window is designed with rulers";
    choose("mnuViewRulerShow");
    EXPECT_FALSE(plot().ShowRuler());
    choose("mnuViewRulerModeOption_0");
    EXPECT_EQ(plot().SetRulerMode(), 0);
    choose("mnuViewRulerModeOption_1");
    EXPECT_EQ(plot().SetRulerMode(), 1);
}

TEST_F(FrmMainCommands, AspectEntriesSetTheRatioAndTheListsRow) {
    choose("mnuViewAspectOption_2");
    EXPECT_FLOAT_EQ(plot().AspectRatio(), 3.5F);
    EXPECT_EQ(window_->controls().lstAspect->currentRow(), 2);
    EXPECT_TRUE(window_->menuAction("mnuViewAspectOption_2")->isChecked());
    EXPECT_FALSE(window_->menuAction("mnuViewAspectOption_0")->isChecked());
}

TEST_F(FrmMainCommands, TheCustomEntriesOpenTheirDialogs) {
    withDialog([](QDialog&) {});
    choose("mnuViewAspectOption_5");
    EXPECT_EQ(dialogSeen_, "frmAspect");
    withDialog([](QDialog&) {});
    choose("mnuViewZoomSize_2");
    EXPECT_EQ(dialogSeen_, "frmZoom");
}

TEST_F(FrmMainCommands, ZoomEntriesAreOfTheirOwnSizes) {
    choose("mnuViewZoomSize_1");
    EXPECT_EQ(plot().Zoom(), 200);
    choose("mnuViewZoomSize_0");
    EXPECT_EQ(plot().Zoom(), 125);
}

TEST_F(FrmMainCommands, GridLabelsAndLegendFollowTheirEntries) {
    choose("mnuPolarGridOption_2");
    EXPECT_EQ(plot().ShowGrid(), 2);
    choose("mnuPolarGridOption_0");
    EXPECT_EQ(plot().ShowGrid(), 0);
    choose("mnuPolarOption_1");
    EXPECT_FALSE(plot().ShowLabel());
    choose("mnuPolarOption_2");
    EXPECT_FALSE(plot().ShowLegend());
    choose("mnuPolarOption_2");
    EXPECT_TRUE(plot().ShowLegend());
}

TEST_F(FrmMainCommands, TheEntriesForRawDataAreEnabled) {
    for (const char* entry : {"mnuFileOption_3", "mnuFileOption_7", "mnuFileOption_8"})
        EXPECT_TRUE(window_->menuAction(entry)->isEnabled()) << entry;
    EXPECT_FALSE(child("tblToolbar_copy")->isEnabled());
    EXPECT_TRUE(child("tblToolbar_open")->isEnabled());
}

TEST_F(FrmMainCommands, TheOpenButtonRunsTheFileEntry) {
    host_.openAnswers.push_back("");
    QTest::mouseClick(child("tblToolbar_open"), Qt::LeftButton);
    EXPECT_EQ(host_.openPicks.size(), 1U);
}

TEST_F(FrmMainCommands, InBatchModeTheOpenCommandAsksNothing) {
    settings.BatchMode = true;
    settings.BatchFRQFilename = inSources("data/samples/LOVETT_1988.frq");
    window_->mnuFileOption_Click(1);
    EXPECT_TRUE(host_.openPicks.empty());
    EXPECT_TRUE(modPolarGraph.FrqLoaded);
    EXPECT_EQ(settings.CurrentFrqPath, settings.BatchFRQFilename);
}

TEST_F(FrmMainCommands, InBatchModeTheSaveCommandAsksNothing) {
    window_->PlotFrqFile(inSources("data/samples/LOVETT_1988.frq"));
    settings.BatchMode = true;
    settings.BatchDirectory = directory_.path() + pathSeparator;
    settings.BatchRootFilename = "R_";
    window_->mnuFileOption_Click(12);
    EXPECT_TRUE(host_.savePicks.empty());
    EXPECT_TRUE(std::filesystem::exists(directory_.file("R_" + modPolarGraph.FrqRoseTitle(1) + ".bmp")));
}

TEST_F(FrmMainCommands, AToolReleasesTheOthersAndShowsItsList) {
    QTest::mouseClick(child("tblToolbox_Zoom"), Qt::LeftButton);
    EXPECT_TRUE(child("lstZoom")->isVisible());
    EXPECT_EQ(window_->activeTool(), Tool::Zoom);
    QTest::mouseClick(child("tblToolbox_Aspect"), Qt::LeftButton);
    EXPECT_FALSE(child("lstZoom")->isVisible());
    EXPECT_TRUE(child("lstAspect")->isVisible());
    EXPECT_FALSE(window_->findChild<QToolButton*>("tblToolbox_Zoom")->isChecked());
    EXPECT_EQ(plot().MousePointer(), 99);
    QTest::mouseClick(child("tblToolbox_Arrow"), Qt::LeftButton);
    EXPECT_FALSE(child("lstAspect")->isVisible());
    EXPECT_EQ(plot().MousePointer(), 1);
}

TEST_F(FrmMainCommands, AClickInTheZoomListZoomsAndIsKept) {
    window_->pressTool(Tool::Zoom);
    auto* list = window_->findChild<QListWidget*>("lstZoom");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(plot().Zoom(), 50);
    EXPECT_EQ(settings.ZoomPercentText, "50");
    EXPECT_EQ(settings.ZoomListIndex, 1);
    settings.ZoomPercentText = "";
    ReadCfgFile(settings.CfgFilePath);
    EXPECT_EQ(settings.ZoomPercentText, "50");
}

TEST_F(FrmMainCommands, CustomInTheZoomListStoresItsRowAndAsks) {
    window_->pressTool(Tool::Zoom);
    auto* list = window_->findChild<QListWidget*>("lstZoom");
    list->scrollToBottom();
    int dialogs = 0;
    withDialog([&dialogs](QDialog&) { ++dialogs; });
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(14)).center());
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(settings.ZoomListIndex, 14);
    withDialog([&dialogs](QDialog&) { ++dialogs; });
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(dialogs, 2) << "Enter on the row asks again";
}

TEST_F(FrmMainCommands, ARatioThatHoldsAlreadyIsLeftAlone) {
    window_->pressTool(Tool::Aspect);
    auto* list = window_->findChild<QListWidget*>("lstAspect");
    list->setCurrentRow(1);
    EXPECT_FLOAT_EQ(plot().AspectRatio(), 2.5F);
    plot().AspectRatio(3.5F);
    list->setCurrentRow(2);
    EXPECT_FALSE(window_->menuAction("mnuViewAspectOption_2")->isChecked());
}

TEST_F(FrmMainCommands, ThePointerIsToldInTheStatusBar) {
    plot().events.TrackPosition(0, 0, 45.678F, 0, 0, 0, 1.23456F);
    EXPECT_EQ(window_->findChild<QLabel*>("sbStatusBar_2")->text(),
              QStringLiteral("Angle = 45.68") + QChar(176));
    EXPECT_EQ(window_->findChild<QLabel*>("sbStatusBar_3")->text(), "Percent = 12.35%");
}

TEST_F(FrmMainCommands, TheListsColumnsShareItsWidth) {
    const QTreeWidget& table = *window_->controls().lvwTable;
    EXPECT_EQ(table.columnWidth(0), 53);
    EXPECT_EQ(table.columnWidth(1), table.width() * 35 / 100);
    EXPECT_EQ(table.columnWidth(2), table.width() - 53 - table.columnWidth(1) - 4);
}

TEST_F(FrmMainCommands, ClosingEndsAnAnimation) {
    plot().StopAni(false);
    window_->close();
    EXPECT_TRUE(plot().StopAni());
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(FrmMainCommands, TheProgressBarFollowsACurve) {
    GrapInfo& curve = plot().Plot().Add("", "4*sin(2*t)", rgb(0, 0, 255), rgb(0, 0, 255));
    curve.Delay = 1;
    curve.EndingAngle = 90;
    curve.Step = 10;
    auto* bar = window_->findChild<QProgressBar*>("pgbProgressBar");
    std::vector<int> values;
    host_.onPump = [&] {
        EXPECT_TRUE(bar->isVisible());
        values.push_back(bar->value() * 100 / bar->maximum());
    };
    plot().DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    ASSERT_FALSE(values.empty());
    EXPECT_EQ(values.front(), 10);
    EXPECT_EQ(values.back(), 100);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(FrmMainCommands, ClosingTheWindowEndsAnAnimation) {
    plot().Plot().Add("", "2", rgb(0, 0, 255), rgb(0, 0, 255)).Delay = 10;
    int pumps = 0;
    host_.onPump = [&] {
        if (++pumps == 3) window_->close();
    };
    plot().DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_LT(pumps, 10);
}

TEST_F(FrmMainCommands, ACurveWithoutAStepIsTold) {
    plot().Plot().Add("", "2", rgb(0, 0, 255), rgb(0, 0, 255)).Step = 0;
    host_.boxAnswers = {BoxAnswer::Ok};
    choose("mnuPolarOption_1");
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '11':\n\nDivision by zero");
}

TEST_F(FrmMainCommands, ExitEndsTheProgramAtOnceAndAsksNothing) {
    const std::string before = directory_.read("Zephyrgraph.cfg");
    settings.ZoomPercentText = "unsaved";
    plot().StopAni(false);
    QTimer::singleShot(0, [this] { choose("mnuFileOption_18"); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_FALSE(plot().StopAni()) << "no unload has run";
    EXPECT_EQ(directory_.read("Zephyrgraph.cfg"), before) << "nothing is saved at the exit";
}

TEST_F(FrmMainCommands, ResetBringsThePageBesideTheRulers) {
    plot().OffsetDrawingAreaX(200);
    choose("mnuViewDA");
    EXPECT_EQ(plot().OffsetDrawingAreaX(), plot().surfaces().picRulerJ.width + 5);
}

TEST_F(FrmMainCommands, TheFrqViewDoesNothingWithoutAFile) {
    choose("mnuViewFRQFile");
    EXPECT_TRUE(host_.boxes.empty());
}

/// A name that the shell would read as something else.
TEST_F(FrmMainCommands, AFileOfAnEvilNameIsShownButNeverHandedToTheViewer) {
    const std::string place = directory_.path() + pathSeparator;
    const std::string path = place + (onWindows ? "50%PATH%.frq" : "roses\n\"touch\" PWNED.frq");
    std::filesystem::copy(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", path);
    window_->PlotFrqFile(path);
    host_.boxAnswers = {BoxAnswer::Ok};
    choose("mnuViewFRQFile");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '52':\n\nBad file name or number: \"" + place +
                                       (onWindows ? "50%PATH%.frq\" has a % in it"
                                                  : "roses<LF>\"touch\" PWNED.frq\" has a line end in it"));
    EXPECT_FALSE(std::filesystem::exists(directory_.file("open_file.bat")));
}

TEST_F(FrmMainCommands, TheFrqViewWritesItsBatchFileWhereTheSettingsAre) {
    settingsDirectory = directory_.file("home");
    std::filesystem::create_directory(settingsDirectory);
    std::filesystem::permissions(directory_.write("xdg-open", "#!/bin/sh\n"),
                                 std::filesystem::perms::owner_all);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(directory_.path()) + ':' + path);
    window_->PlotFrqFile(inSources("data/samples/LOVETT_1988.frq"));
    bool isThere = false;
    host_.onPump = [&] {
        isThere = isThere || std::filesystem::exists(directory_.file("home/open_file.bat"));
        EXPECT_FALSE(std::filesystem::exists(directory_.file("open_file.bat")))
            << "nothing can be written there";
    };
    choose("mnuViewFRQFile");
    qputenv("PATH", path);
    EXPECT_TRUE(isThere);
    EXPECT_TRUE(host_.boxes.empty());
}

}  // namespace
}  // namespace zg
