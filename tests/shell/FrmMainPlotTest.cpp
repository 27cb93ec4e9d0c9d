// How the main window and its plot interact: locks, selection, pointers, output, unit of the legend.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QMenu>
#include <QPrinter>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "platform/QtPicture.h"
#include "settings/CfgFile.h"
#include "shell/Resources.h"
#include "tests/shell/MainWindow.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

const std::string lovett = inSources("data/samples/LOVETT_1988.frq");

class FrmMainPlot : public MainWindow {
 protected:
    void SetUp() override {
        program_.deliver({"TimeZones.txt"});
        MainWindow::SetUp();
    }

    QWidget& page() { return *child("picGraph"); }

    /// Opens a modal dialog by its entry, lets the act operate it, then cancels it.
    void inDialogOf(
        const char* name, std::function<void(QDialog&)> act = [](QDialog&) {}) {
        bool opened = false;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            opened = true;
            act(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        entry(name).trigger();
        QApplication::processEvents();
        EXPECT_TRUE(opened) << name;
    }

    void select() {
        window_->pressTool(Tool::Select);
        QTest::mousePress(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 20));
        plot().mouseMove(leftButton, 0, 59, 39);
        QTest::mouseRelease(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(59, 39));
        plot().mouseMove(0, 0, 100, 100);
    }

    GrapInfo& curve() {
        GrapInfo& made = plot().Plot().Add("", "2", rgb(0, 0, 255), rgb(0, 0, 255));
        made.Step = 90;
        made.Delay = 1;
        return made;
    }

    std::string withLimits(const char* limits) {
        std::ifstream file(lovett, std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::string own = "0.5,0.5,1.8,3.3,5.4,8.5,10.8";
        text.replace(text.find(own), own.size(), limits);
        return directory_.write("other.frq", text);
    }
    std::vector<std::string> legendLimits() {
        return {modPolarGraph.LegendClassLimit.begin(), modPolarGraph.LegendClassLimit.end()};
    }
};

constexpr const char* lockedEntries[] = {
    "mnuFileOption_1",       "mnuFileOption_3",       "mnuFileOption_4",       "mnuFileOption_5",
    "mnuFileOption_6",       "mnuFileOption_7",       "mnuFileOption_8",       "mnuFileOption_9",
    "mnuFileOption_10",      "mnuFileOption_12",      "mnuFileOption_13",      "mnuFileOption_15",
    "mnuFileOption_16",      "mnuFileOption_18",      "mnuEditOption_0",       "mnuEditOption_1",
    "mnuEditOption_3",       "mnuViewAspectOption_0", "mnuViewAspectOption_1", "mnuViewAspectOption_2",
    "mnuViewAspectOption_3", "mnuViewAspectOption_5", "mnuViewZoomSize_0",     "mnuViewZoomSize_1",
    "mnuViewZoomSize_2",     "mnuPolarOption_0",      "mnuPolarOption_1",      "mnuPolarOption_2",
    "mnuPolarGridOption_0",  "mnuPolarGridOption_1",  "mnuPolarGridOption_2",  "mnuViewRefresh"};
constexpr const char* freeEntries[] = {"mnuAvePeriod",    "mnuViewFRQFile",   "mnuViewToolbar",
                                       "mnuViewToolbox",  "mnuViewRulerShow", "mnuViewRulerModeOption_0",
                                       "mnuViewDA",       "mnuSetSeasons",    "mnuSetWindSpeedClasses",
                                       "mnuChangeRadius", "mnuAddLabel",      "mnuEditLegend",
                                       "mnuGridFonts",    "mnuHelpAbout"};
constexpr const char* lockedControls[] = {"tblToolbar_open",   "tblToolbar_save", "tblToolbar_print",
                                          "tblToolbar_copy",   "cmbFunction",     "tblToolbox_Select",
                                          "tblToolbox_Aspect", "tblToolbox_Zoom"};
constexpr const char* freeControls[] = {"tblToolbox_Arrow", "tblToolbox_Cross", "tblToolbox_Circular",
                                        "tblToolbox_Pan", "txtCoefficient"};

TEST_F(FrmMainPlot, WhatACurveLocksIsGivenBackAtItsEnd) {
    curve();
    select();  // so that Copy is enabled beforehand
    for (const char* name : lockedEntries) {
        if (!entry(name).isVisible()) continue;  // hidden entries are disabled
        EXPECT_TRUE(entry(name).isEnabled()) << name << " before";
    }
    for (const char* name : lockedControls) EXPECT_TRUE(child(name)->isEnabled()) << name << " before";
    int looked = 0;
    host_.onPump = [&] {
        if (++looked > 1) return;
        for (const char* name : lockedEntries) EXPECT_FALSE(entry(name).isEnabled()) << name << " meanwhile";
        for (const char* name : freeEntries) EXPECT_TRUE(entry(name).isEnabled()) << name << " meanwhile";
        for (const char* name : lockedControls)
            EXPECT_FALSE(child(name)->isEnabled()) << name << " meanwhile";
        for (const char* name : freeControls) EXPECT_TRUE(child(name)->isEnabled()) << name << " meanwhile";
        EXPECT_FALSE(child("tblToolbar_new")->isEnabled());
        for (const char* name : {"mnuPolarOption_4", "mnuPolarOption_6"})
            EXPECT_FALSE(entry(name).isEnabled()) << name;
    };
    plot().DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_GT(looked, 0);
    for (const char* name : lockedEntries) {
        if (!entry(name).isVisible()) continue;
        EXPECT_TRUE(entry(name).isEnabled()) << name << " after";
    }
    for (const char* name : lockedControls) EXPECT_TRUE(child(name)->isEnabled()) << name << " after";
    EXPECT_FALSE(child("tblToolbar_new")->isEnabled()) << "it does nothing";
    EXPECT_FALSE(entry("mnuFileOption_0").isEnabled());
    for (const char* name : {"mnuPolarOption_4", "mnuPolarOption_6"})
        EXPECT_FALSE(entry(name).isEnabled()) << name;
}

TEST_F(FrmMainPlot, TheGridLinesCanStillBeChosenAfterACurve) {
    curve();
    plot().Refresh();
    ASSERT_TRUE(entry("mnuPolarOption_0").isEnabled());
    entry("mnuPolarGridOption_2").trigger();
    EXPECT_EQ(plot().ShowGrid(), 2);
}

TEST_F(FrmMainPlot, ReplaceIsLockedUnlessTheListHasEntries) {
    curve();
    plot().Refresh();
    EXPECT_FALSE(child("cmdReplace")->isEnabled()) << "the box has no list yet";
    window_->PlotFrqFile(lovett);
    plot().Refresh();
    EXPECT_TRUE(child("cmdReplace")->isEnabled());
}

TEST_F(FrmMainPlot, EditIsEnabledByTheSelectionWhenItOpens) {
    curve();
    plot().Refresh();
    EXPECT_TRUE(entry("mnuEditOption_0").isEnabled()) << "the end of a curve enables all";
    QMenu& menu = *entry("mnuEdit").menu();
    menu.popup(QPoint(0, 0));
    EXPECT_FALSE(entry("mnuEditOption_0").isEnabled());
    EXPECT_TRUE(entry("mnuEditOption_1").isEnabled());
    EXPECT_FALSE(entry("mnuEditOption_3").isEnabled());
    menu.hide();
    plot().EditSelectAll();
    menu.popup(QPoint(0, 0));
    EXPECT_TRUE(entry("mnuEditOption_0").isEnabled());
    EXPECT_TRUE(entry("mnuEditOption_3").isEnabled());
    menu.hide();
}

TEST_F(FrmMainPlot, TheRightButtonPopsUpEdit) {
    QMenu& menu = *entry("mnuEdit").menu();
    QTest::mouseClick(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_FALSE(menu.isVisible());
    QTest::mousePress(&page(), Qt::RightButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_FALSE(menu.isVisible()) << "not before the button is up";
    QTest::mouseRelease(&page(), Qt::RightButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_TRUE(menu.isVisible());
    menu.hide();
}

TEST_F(FrmMainPlot, CopyFollowsTheSelectionOnEveryMoveToolAspectAndZoom) {
    QWidget& copy = *child("tblToolbar_copy");
    EXPECT_FALSE(copy.isEnabled());
    select();
    EXPECT_TRUE(copy.isEnabled()) << "at the move after it";
    EXPECT_TRUE(entry("mnuEditOption_0").isEnabled()) << "its key too";
    window_->pressTool(Tool::Cross);
    EXPECT_FALSE(copy.isEnabled()) << "another tool ends the selection";
    EXPECT_FALSE(entry("mnuEditOption_0").isEnabled());
    for (const char* name : {"mnuViewAspectOption_1", "mnuViewZoomSize_1", "mnuViewZoomSize_0"}) {
        select();
        ASSERT_TRUE(plot().ActiveSelection());
        entry(name).trigger();
        EXPECT_FALSE(plot().ActiveSelection()) << name;
        EXPECT_EQ(plot().SetActiveTool(), 4) << name << ": the tool stays";
        EXPECT_FALSE(copy.isEnabled()) << name;
    }
    select();
    inDialogOf("mnuViewZoomSize_2");
    EXPECT_FALSE(plot().ActiveSelection()) << "also when its dialog is cancelled";
    select();
    inDialogOf("mnuViewAspectOption_5");
    EXPECT_FALSE(plot().ActiveSelection());
}

TEST_F(FrmMainPlot, TheCopyButtonCopiesTheSelectionAndThePrintButtonPrints) {
    select();
    QTest::mouseClick(child("tblToolbar_copy"), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(50, 20));
    int asked = 0;
    window_->controls().pgPolarGraph->askPrinter = [&asked](QPrinter&) {
        ++asked;
        return false;
    };
    QTest::mouseClick(child("tblToolbar_print"), Qt::LeftButton);
    EXPECT_EQ(asked, 1);
    entry("mnuFileOption_16").trigger();
    EXPECT_EQ(asked, 2);
}

TEST_F(FrmMainPlot, TheHandClosesWhileItPans) {
    const auto shows = [this](ToolCursor id) {
        const PicturePointer own = cursorPicture(static_cast<int>(id));
        return plot().MousePointer() == 99 && imageOf(*plot().MouseIcon()) == imageOf(*own);
    };
    window_->pressTool(Tool::Pan);
    EXPECT_TRUE(shows(ToolCursor::Pan));
    QTest::mousePress(&page(), Qt::RightButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_TRUE(shows(ToolCursor::Pan)) << "the other button drags nothing";
    QTest::mousePress(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_TRUE(shows(ToolCursor::PanDragging));
    QTest::mouseRelease(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
    EXPECT_TRUE(shows(ToolCursor::Pan));
    window_->pressTool(Tool::Arrow);
    QTest::mousePress(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    EXPECT_EQ(plot().MousePointer(), 1);
}

TEST_F(FrmMainPlot, TheColourBoxesHaveAPointerOfTheirOwn) {
    const PicturePointer own = cursorPicture(101);
    for (const char* name : {"picColor_0", "picColor_1"})
        EXPECT_EQ(child(name)->cursor().pixmap().toImage(), QPixmap::fromImage(imageOf(*own)).toImage())
            << name;
}

TEST_F(FrmMainPlot, CustomInTheAspectListAsksByClickAndByEnter) {
    window_->pressTool(Tool::Aspect);
    auto* list = child<QListWidget>("lstAspect");
    QStringList asked;
    const auto answer = [&asked] {
        QTimer::singleShot(0, [&asked] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            asked.append(dialog->objectName());
            static_cast<QDialog*>(dialog)->reject();
        });
    };
    answer();
    list->scrollToBottom();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(4)).center());
    EXPECT_EQ(asked, QStringList{"frmAspect"});
    answer();
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(asked, (QStringList{"frmAspect", "frmAspect"}));
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(asked.size(), 2) << "Enter on another row asks nothing";
}

TEST_F(FrmMainPlot, TheAboutOfThePlotHasTheTitleThatItGives) {
    QString title;
    QTimer::singleShot(0, [&title] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), "frmAboutZephyrgraph");
        title = dialog->windowTitle();
        dialog->reject();
    });
    plot().ShowAbout();
    EXPECT_EQ(title, "About");
    inDialogOf("mnuHelpAbout", [](QDialog& dialog) { EXPECT_EQ(dialog.windowTitle(), "About Zephyrgraph"); });
}

TEST_F(FrmMainPlot, KnotsThatCameWithTheSettingsAreThoseOfTheFileOnShow) {
    window_->PlotFrqFile(lovett);
    inDialogOf("mnuEditLegend", [](QDialog& dialog) {
        dialog.findChild<QAbstractButton*>("optKnots")->click();
        QTest::mouseClick(dialog.findChild<QWidget*>("cmdOk"), Qt::LeftButton);
    });
    EXPECT_EQ(legendLimits().at(6), "20.99");
    window_->PlotFrqFile(withLimits("1,1,2,3,4,5,6"));
    EXPECT_EQ(legendLimits().at(6), "6") << "a load speaks in metres per second";
    inDialogOf("mnuFileOption_8");
    entry("mnuViewZoomSize_0").trigger();
    EXPECT_EQ(legendLimits(),
              (std::vector<std::string>{"1.94E+00", "1.94", "3.89", "5.83", "7.78", "9.72", "11.66"}));
    // The next session.
    window_.reset();
    modPolarGraph = ModPolarGraph();
    start();
    window_->PlotFrqFile(lovett);
    inDialogOf("mnuFileOption_8");
    entry("mnuViewZoomSize_1").trigger();
    EXPECT_EQ(legendLimits().at(6), "20.99");
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmMainPlot, SaveAsksForAFileAndCopyNeedsASelection) {
    EXPECT_FALSE(child("tblToolbar_copy")->isEnabled());
    host_.saveAnswers = {directory_.file("page.bmp")};
    QTest::mouseClick(child("tblToolbar_save"), Qt::LeftButton);
    EXPECT_EQ(QImage(QString::fromStdString(directory_.file("page.bmp"))).size(), QSize(600, 600));
    EXPECT_EQ(window_->activeTool(), Tool::Select);
    EXPECT_TRUE(plot().ActiveSelection());
    EXPECT_TRUE(child("tblToolbar_copy")->isEnabled());
    EXPECT_TRUE(entry("mnuEditOption_0").isEnabled());
    host_.saveAnswers = {directory_.file("no/page.bmp")};
    host_.boxAnswers = {BoxAnswer::Ok};
    entry("mnuFileOption_12").trigger();
    EXPECT_NE(host_.boxes[0].text.find("Path/File access error: "), std::string::npos);
}

TEST_F(FrmMainPlot, CopyIsOnAsSoonAsASelectionIsDragged) {
    window_->pressTool(Tool::Select);
    QTest::mousePress(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 20));
    plot().mouseMove(leftButton, 0, 59, 39);
    QTest::mouseRelease(&page(), Qt::LeftButton, Qt::NoModifier, QPoint(59, 39));
    QApplication::processEvents();
    EXPECT_TRUE(child("tblToolbar_copy")->isEnabled()) << "without another move of the pointer";
    EXPECT_TRUE(entry("mnuEditOption_0").isEnabled());
}

TEST_F(FrmMainPlot, TheToolsPointerSurvivesAnAspectEntry) {
    window_->pressTool(Tool::Select);
    const PicturePointer own = cursorPicture(static_cast<int>(ToolCursor::Select));
    for (const char* name : {"mnuViewAspectOption_2", "mnuViewZoomSize_0"}) {
        entry(name).trigger();
        EXPECT_EQ(plot().MousePointer(), 99) << name;
        ASSERT_NE(plot().MouseIcon(), nullptr) << name;
        EXPECT_EQ(imageOf(*plot().MouseIcon()), imageOf(*own)) << name;
    }
}

}  // namespace
}  // namespace zg
