// The list of graphs, its row of boxes and its context menu, operated by mouse and keys.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProgressBar>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "base/Lines.h"
#include "platform/QtText.h"
#include "tests/shell/MainWindow.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

class FrmMainGraphs : public ActiveMainWindow {
 protected:
    GrapInfo& graph(int number) { return plot().Plot().Item(std::int64_t{number}); }
    QTreeWidget& table() { return *child<QTreeWidget>("lvwTable"); }
    QLineEdit& equation() { return *child<QComboBox>("cmbFunction")->lineEdit(); }
    QLineEdit& coefficient() { return *child<QLineEdit>("txtCoefficient"); }

    void type(QLineEdit& box, const char* text) {
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, QString::fromLatin1(text));
    }
    void plotCurve(const char* text, const char* code = "") {
        type(equation(), text);
        type(coefficient(), code);
        click("cmdPlot");
    }
    void clickRow(int row, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers keys = Qt::NoModifier) {
        table().scrollToItem(table().topLevelItem(row));
        const QPoint at = table().visualItemRect(table().topLevelItem(row)).center();
        QTest::mouseClick(table().viewport(), button, keys, at);
    }
    std::vector<int> selected() {
        std::vector<int> rows;
        for (int row = 0; row < table().topLevelItemCount(); ++row)
            if (table().topLevelItem(row)->isSelected()) rows.push_back(row);
        return rows;
    }
    /// Opens the context menu by a right click on the current selection, and closes it again.
    void openPopUp() {
        auto* menu = window_->menuAction("mnuGraph")->menu();
        menu->popup(QPoint(0, 0));
        menu->hide();
    }
    bool offers(int index) {
        return window_->menuAction("mnuGraphOption_" + std::to_string(index))->isEnabled();
    }
    void choose(int index) {
        openPopUp();
        ASSERT_TRUE(offers(index)) << index;
        window_->menuAction("mnuGraphOption_" + std::to_string(index))->trigger();
    }
    /// Number of pixels of the page that are closer to blue than to any grey.
    int bluePixels() {
        const QImage page = child<PolarGraphWidget>("pgPolarGraph")->pageImage();
        int count = 0;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if (qBlue(page.pixel(x, y)) - qRed(page.pixel(x, y)) > 100) ++count;
        return count;
    }
};

constexpr Colour lineColour = rgb(12, 34, 250);

TEST_F(FrmMainGraphs, ACurveIsTypedAndPlotted) {
    EXPECT_FALSE(child("cmdPlot")->isEnabled());
    EXPECT_FALSE(child("cmdReplace")->isEnabled());
    host_.colourAnswers = {lineColour};
    click("picColor_0");
    type(equation(), "a*sin(2*t)");
    EXPECT_TRUE(child("cmdPlot")->isEnabled());
    type(coefficient(), "a=4");
    EXPECT_EQ(bluePixels(), 0);
    click("cmdPlot");
    ASSERT_EQ(plot().Plot().Count(), 1);
    EXPECT_EQ(graph(1).Equation, "a*sin(2*t)");
    EXPECT_EQ(graph(1).Coefficient, "a=4");
    EXPECT_EQ(graph(1).Series.Pen.FillColor, lineColour);
    EXPECT_EQ(graph(1).Series.Marker.FillColor, rgb(0, 0, 255));
    EXPECT_GT(bluePixels(), 50);
    ASSERT_EQ(table().topLevelItemCount(), 1);
    EXPECT_EQ(table().topLevelItem(0)->text(1), "a=4");
    EXPECT_EQ(table().topLevelItem(0)->text(2), "a*sin(2*t)");
    EXPECT_EQ(selected(), std::vector<int>{0});
    EXPECT_EQ(child<QComboBox>("cmbFunction")->count(), 1);
    EXPECT_TRUE(child("cmdReplace")->isEnabled());
}

TEST_F(FrmMainGraphs, ADivisionByZeroAtTheCheckStillPlots) {
    host_.boxAnswers = {BoxAnswer::Ok};
    plotCurve("1/t");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '11':\n\nDivision by zero") << "the first angle hits it";
    EXPECT_EQ(plot().Plot().Count(), 1);
    EXPECT_EQ(table().topLevelItemCount(), 1);
    EXPECT_EQ(child<QComboBox>("cmbFunction")->count(), 1);
}

TEST_F(FrmMainGraphs, ACurveThatFailsIsToldOnceAndTheOthersArePaintedWhole) {
    host_.boxAnswers = {BoxAnswer::Ok};
    plotCurve("1/t");
    EXPECT_EQ(host_.boxes.size(), 1U);
    plotCurve("3");
    const int whole = bluePixels();
    EXPECT_GT(whole, 50);
    plot().Refresh();
    EXPECT_EQ(bluePixels(), whole) << "the curve after the failing one is painted too";
    int printed = 0;
    window_->controls().pgPolarGraph->askPrinter = [this, &printed](QPrinter& printer) {
        printer.setOutputFileName(QString::fromStdString(directory_.file("page.pdf")));
        return ++printed > 0;
    };
    for (const char* name : {"mnuPolarOption_1", "mnuViewZoomSize_0", "mnuFileOption_16"})
        window_->menuAction(name)->trigger();
    EXPECT_EQ(printed, 1);
    EXPECT_EQ(host_.boxes.size(), 1U) << "not told at each redraw, zoom or print";
}

TEST_F(FrmMainGraphs, ARowTellsWhyItsCurveIsNotWhole) {
    host_.boxAnswers = {BoxAnswer::Ok};
    plotCurve("1/t");
    plotCurve("3");
    EXPECT_EQ(table().topLevelItem(0)->toolTip(2), "Division by zero");
    EXPECT_FALSE(table().topLevelItem(0)->icon(2).isNull());
    EXPECT_EQ(table().topLevelItem(1)->toolTip(2), "");
    EXPECT_TRUE(table().topLevelItem(1)->icon(2).isNull());
    graph(1).StartingAngle = 1;
    plot().Refresh();
    EXPECT_EQ(table().topLevelItem(0)->toolTip(2), "") << "it is whole now";
    EXPECT_TRUE(table().topLevelItem(0)->icon(2).isNull());
}

TEST_F(FrmMainGraphs, AFailingCurveIsToldAgainAfterAChangeOfItsTextCoefficientOrRange) {
    host_.boxAnswers.assign(4, BoxAnswer::Ok);
    plotCurve("1/t");
    type(equation(), "2/t");
    click("cmdReplace");
    EXPECT_EQ(host_.boxes.size(), 2U);
    type(coefficient(), "a=1");
    click("cmdReplace");
    EXPECT_EQ(host_.boxes.size(), 3U);
    graph(1).EndingAngle = 90;
    window_->menuAction("mnuPolarOption_1")->trigger();
    EXPECT_EQ(host_.boxes.size(), 4U);
    graph(1).Series.Pen.Weight = 3;
    window_->menuAction("mnuPolarOption_1")->trigger();
    EXPECT_EQ(host_.boxes.size(), 4U) << "its looks have nothing to do with it";
}

TEST_F(FrmMainGraphs, EnterInTheEmptyBoxAddsNothing) {
    plotCurve("2");
    for (const char* text : {"", "  "}) {
        type(equation(), text);
        QTest::keyClick(&equation(), Qt::Key_Return);
        EXPECT_EQ(plot().Plot().Count(), 1);
        EXPECT_EQ(table().topLevelItemCount(), 1);
    }
}

TEST_F(FrmMainGraphs, AFaultyEquationIsToldAndSelectedFromItsColumn) {
    host_.boxAnswers = {BoxAnswer::Ok};
    plotCurve("2*sin(t))+1");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].title, "Equation");
    EXPECT_EQ(host_.boxes[0].text, "Expected end of statement : '2*sin(t))+1'");
    EXPECT_EQ(plot().Plot().Count(), 0);
    EXPECT_EQ(equation().selectedText(), ")+1");
    EXPECT_TRUE(equation().hasFocus() || child<QComboBox>("cmbFunction")->hasFocus());
}

TEST_F(FrmMainGraphs, AFaultyCoefficientIsToldFirst) {
    host_.boxAnswers = {BoxAnswer::Ok};
    type(equation(), "2*(");
    type(coefficient(), "  a=1:b=)");
    click("cmdPlot");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].title, "Equation");
    EXPECT_EQ(host_.boxes[0].text, "Syntax error : '  a=1:b=)'");
    EXPECT_EQ(coefficient().selectedText(), ")");
    EXPECT_TRUE(coefficient().hasFocus());
    EXPECT_EQ(plot().Plot().Count(), 0);
}

TEST_F(FrmMainGraphs, EnterPlotsOnlyIfTheListHasRows) {
    type(equation(), "3");
    QTest::keyClick(child("cmbFunction"), Qt::Key_Return);
    EXPECT_EQ(plot().Plot().Count(), 0);
    click("cmdPlot");
    type(equation(), "4");
    QTest::keyClick(child("cmbFunction"), Qt::Key_Return);
    EXPECT_EQ(plot().Plot().Count(), 2);
    coefficient().setFocus();
    QTest::keyClick(&coefficient(), Qt::Key_Return);
    EXPECT_TRUE(child("cmbFunction")->hasFocus());
    EXPECT_EQ(plot().Plot().Count(), 2);
}

TEST_F(FrmMainGraphs, ReplaceChangesTheSelectedRowOnly) {
    plotCurve("3", "a=1");
    plotCurve("4", "a=2");
    clickRow(0);
    EXPECT_EQ(equation().text(), "3");
    EXPECT_EQ(coefficient().text(), "a=1");
    host_.colourAnswers = {lineColour, rgb(9, 8, 7)};
    click("picColor_0");
    click("picColor_1");
    type(equation(), "2.5");
    type(coefficient(), "a=9");
    click("cmdReplace");
    EXPECT_EQ(graph(1).Equation, "2.5");
    EXPECT_EQ(graph(1).Coefficient, "a=9");
    EXPECT_EQ(graph(1).Series.Pen.FillColor, lineColour);
    EXPECT_EQ(graph(1).Series.Marker.FillColor, rgb(9, 8, 7));
    EXPECT_EQ(graph(2).Equation, "4");
    EXPECT_EQ(selected(), std::vector<int>{0});
    EXPECT_EQ(table().topLevelItem(0)->text(2), "2.5");
    EXPECT_EQ(child<QComboBox>("cmbFunction")->itemText(0), "2.5");
    EXPECT_EQ(child<QComboBox>("cmbFunction")->itemText(1), "4");
    EXPECT_EQ(coefficient().text(), "a=9");
    EXPECT_EQ(equation().text(), "2.5");
    EXPECT_GT(bluePixels(), 50);
}

TEST_F(FrmMainGraphs, AFaultStopsReplaceBeforeThePlotChanges) {
    plotCurve("3");
    host_.boxAnswers = {BoxAnswer::Ok};
    type(equation(), "3+");
    click("cmdReplace");
    EXPECT_EQ(graph(1).Equation, "3");
    EXPECT_EQ(table().topLevelItem(0)->text(2), "3");
}

TEST_F(FrmMainGraphs, ClearEmptiesTheEquation) {
    plotCurve("3");
    click("cmdClear");
    EXPECT_EQ(equation().text(), "");
    EXPECT_FALSE(child("cmdPlot")->isEnabled());
    EXPECT_FALSE(child("cmdReplace")->isEnabled()) << "the list has rows";
}

TEST_F(FrmMainGraphs, AClickInTheBoxesListSelectsTheRowOfItsPosition) {
    plotCurve("3", "a=1");
    plotCurve("4", "a=2");
    table().selectAll();
    auto* box = child<QComboBox>("cmbFunction");
    box->showPopup();
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      box->view()->visualRect(box->model()->index(0, 0)).center());
    EXPECT_EQ(selected(), std::vector<int>{0});
    EXPECT_EQ(coefficient().text(), "a=1");
    EXPECT_EQ(equation().text(), "3");
}

TEST_F(FrmMainGraphs, TypingATextOfTheListLeavesSelectionAndCoefficientAlone) {
    plotCurve("3", "a=1");
    plotCurve("4", "a=2");
    clickRow(1);
    type(coefficient(), "a=7");
    type(equation(), "3");
    coefficient().setFocus();
    EXPECT_EQ(coefficient().text(), "a=7");
    EXPECT_EQ(selected(), std::vector<int>{1});
}

TEST_F(FrmMainGraphs, WithTwoRowsSelectedTheBoxesAreLeftAlone) {
    plotCurve("3");
    plotCurve("4");
    clickRow(0);
    EXPECT_EQ(equation().text(), "3");
    clickRow(1, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(selected(), (std::vector<int>{0, 1}));
    EXPECT_EQ(equation().text(), "3");
    openPopUp();
    EXPECT_TRUE(offers(0));
    EXPECT_TRUE(offers(2));
    EXPECT_FALSE(offers(9));
    EXPECT_FALSE(offers(11));
    EXPECT_FALSE(offers(6));
}

TEST_F(FrmMainGraphs, ARightClickOpensThePopUpOnlyOverRows) {
    auto* menu = window_->menuAction("mnuGraph")->menu();
    QTest::mouseClick(table().viewport(), Qt::RightButton);
    EXPECT_FALSE(menu->isVisible());
    plotCurve("3");
    clickRow(0, Qt::RightButton);
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
}

TEST_F(FrmMainGraphs, HiddenRowsAreGhostedAndKeepTheirPlace) {
    host_.colourAnswers = {lineColour};
    click("picColor_0");
    plotCurve("3");
    plotCurve("0.5");
    const int both = bluePixels();
    clickRow(0);
    choose(0);
    EXPECT_FALSE(graph(1).Visible);
    EXPECT_TRUE(graph(2).Visible);
    EXPECT_LT(bluePixels(), both) << "the hidden curve is off the page";
    EXPECT_GT(bluePixels(), 0);
    EXPECT_EQ(table().topLevelItem(0)->foreground(2).color(), QColor(Qt::gray));
    EXPECT_EQ(table().topLevelItem(0)->text(2), "3");
    openPopUp();
    EXPECT_FALSE(offers(0));
    EXPECT_TRUE(offers(1));
    choose(1);
    EXPECT_TRUE(graph(1).Visible);
    EXPECT_EQ(bluePixels(), both);
    EXPECT_NE(table().topLevelItem(0)->foreground(2).color(), QColor(Qt::gray));
}

TEST_F(FrmMainGraphs, DeleteTakesTheSelectedRowsAndShowsTheFirstThatIsLeft) {
    for (const char* text : {"1", "2", "3", "4"}) plotCurve(text, (std::string("a=") + text).c_str());
    clickRow(0);
    clickRow(2, Qt::LeftButton, Qt::ControlModifier);
    choose(2);
    ASSERT_EQ(plot().Plot().Count(), 2);
    EXPECT_EQ(graph(1).Equation, "2");
    EXPECT_EQ(graph(2).Equation, "4");
    EXPECT_EQ(table().topLevelItem(1)->text(2), "4");
    EXPECT_EQ(selected(), std::vector<int>{0});
    EXPECT_EQ(equation().text(), "2");
    EXPECT_EQ(coefficient().text(), "a=2");
    EXPECT_EQ(table().selectionMode(), QAbstractItemView::ExtendedSelection);
}

TEST_F(FrmMainGraphs, DeletingAllRowsDisablesReplaceAndEmptiesTheCoefficient) {
    host_.colourAnswers = {lineColour};
    click("picColor_0");
    plotCurve("2", "a=1");
    plotCurve("3", "a=2");
    choose(4);
    EXPECT_EQ(selected(), (std::vector<int>{0, 1}));
    choose(2);
    EXPECT_EQ(plot().Plot().Count(), 0);
    EXPECT_EQ(table().topLevelItemCount(), 0);
    EXPECT_FALSE(child("cmdReplace")->isEnabled());
    EXPECT_EQ(coefficient().text(), "");
    EXPECT_EQ(child<QComboBox>("cmbFunction")->count(), 0);
    EXPECT_EQ(bluePixels(), 0);
}

TEST_F(FrmMainGraphs, TheDeleteKeyDeletes) {
    plotCurve("2");
    plotCurve("3");
    clickRow(1);
    QTest::keyClick(&table(), Qt::Key_Delete);
    ASSERT_EQ(plot().Plot().Count(), 1);
    EXPECT_EQ(graph(1).Equation, "2");
}

TEST_F(FrmMainGraphs, PlayAnimatesTheSelectedCurveAndStopEndsIt) {
    plotCurve("2");
    plotCurve("3");
    graph(1).Delay = 10;
    graph(2).Delay = 10;
    clickRow(1);
    openPopUp();
    EXPECT_TRUE(offers(6));
    EXPECT_FALSE(offers(7));
    int pumps = 0;
    host_.onPump = [&] {
        if (++pumps != 5) return;
        EXPECT_TRUE(child<QProgressBar>("pgbProgressBar")->isVisible());
        EXPECT_FALSE(child("cmbFunction")->isEnabled());
        EXPECT_FALSE(child("cmdReplace")->isEnabled());
        EXPECT_FALSE(child("tblToolbar_open")->isEnabled());
        EXPECT_FALSE(child("tblToolbox_Zoom")->isEnabled());
        EXPECT_TRUE(child("tblToolbox_Arrow")->isEnabled());
        for (const char* entry : {"mnuFileOption_1", "mnuFileOption_18", "mnuViewAspectOption_0",
                                  "mnuViewZoomSize_1", "mnuPolarOption_1", "mnuPolarGridOption_0"})
            EXPECT_FALSE(window_->menuAction(entry)->isEnabled()) << entry;
        EXPECT_TRUE(window_->menuAction("mnuSetSeasons")->isEnabled());
        openPopUp();
        EXPECT_FALSE(offers(0) || offers(1) || offers(2) || offers(6) || offers(9) || offers(11));
        EXPECT_TRUE(offers(7));
        EXPECT_TRUE(offers(4));
        window_->menuAction("mnuGraphOption_7")->trigger();
    };
    choose(6);
    EXPECT_GE(pumps, 5);
    EXPECT_LT(pumps, 100) << "stopped long before 361 steps";
    EXPECT_TRUE(plot().StopAni());
    EXPECT_EQ(graph(1).Delay, 10);
    EXPECT_TRUE(window_->menuAction("mnuFileOption_1")->isEnabled());
    EXPECT_TRUE(child("cmbFunction")->isEnabled());
    EXPECT_EQ(window_->activeTool(), Tool::Arrow);
}

TEST_F(FrmMainGraphs, PlayIsOfferedOnlyWithADelay) {
    plotCurve("2");
    clickRow(0);
    openPopUp();
    EXPECT_FALSE(offers(6));
    graph(1).Delay = 1;
    openPopUp();
    EXPECT_TRUE(offers(6));
}

TEST_F(FrmMainGraphs, WithoutASelectionOnlySelectAllIsOffered) {
    plotCurve("2");
    table().clearSelection();
    openPopUp();
    for (const int index : {0, 1, 2, 6, 7, 9, 11}) EXPECT_FALSE(offers(index)) << index;
    EXPECT_TRUE(offers(4));
}

TEST_F(FrmMainGraphs, ALoadListsWhatThePlotHolds) {
    plotCurve("2", "a=1");
    plotCurve("3", "a=2");
    graph(2).Visible = false;
    host_.openAnswers.push_back(inSources("data/samples/LOVETT_1988.frq"));
    window_->menuAction("mnuFileOption_1")->trigger();
    EXPECT_EQ(table().topLevelItemCount(), 2);
    EXPECT_EQ(equation().text(), "2");
    EXPECT_EQ(coefficient().text(), "a=1");
    EXPECT_EQ(selected(), std::vector<int>{0});
    EXPECT_EQ(table().topLevelItem(1)->foreground(1).color(), QColor(Qt::gray));
    EXPECT_TRUE(child("cmdPlot")->isEnabled());
}

TEST_F(FrmMainGraphs, ALoadWithoutCurvesDisablesBothButtons) {
    type(equation(), "7");
    EXPECT_TRUE(child("cmdPlot")->isEnabled());
    host_.openAnswers.push_back(inSources("data/samples/LOVETT_1988.frq"));
    window_->menuAction("mnuFileOption_1")->trigger();
    EXPECT_FALSE(child("cmdPlot")->isEnabled());
    EXPECT_FALSE(child("cmdReplace")->isEnabled());
}

TEST_F(FrmMainGraphs, ARefusedFileLeavesListAndPlot) {
    plotCurve("2");
    clickRow(0);
    type(equation(), "typed");
    host_.boxAnswers = {BoxAnswer::Ok};
    host_.openAnswers.push_back(directory_.write("junk.frq", "junk\r\n"));
    window_->menuAction("mnuFileOption_1")->trigger();
    EXPECT_EQ(equation().text(), "typed");
    EXPECT_EQ(table().topLevelItemCount(), 1);
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - junk.frq");
}

TEST_F(FrmMainGraphs, ACommentIsShownAfterALoad) {
    plot().Comment("  first  ");
    QString seen;
    QTimer::singleShot(0, [&] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), "frmComment");
        EXPECT_EQ(dialog->windowTitle(), "Comment");
        auto* box = dialog->findChild<QPlainTextEdit*>("txtComment");
        seen = box->toPlainText();
        box->setPlainText("  second ");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdOk"), Qt::LeftButton);
    });
    window_->PlotFrqFile(inSources("data/samples/LOVETT_1988.frq"));
    EXPECT_EQ(seen, "  first  ");
    EXPECT_EQ(plot().Comment(), "second");
}

TEST_F(FrmMainGraphs, ACancelledCommentStays) {
    plot().Comment("first");
    QTimer::singleShot(0, [] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QPlainTextEdit*>("txtComment")->setPlainText("second");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
    });
    window_->PlotFrqFile(inSources("data/samples/LOVETT_1988.frq"));
    EXPECT_EQ(plot().Comment(), "first");
}

TEST_F(FrmMainGraphs, PlotPressesTheArrowFirst) {
    window_->pressTool(Tool::Zoom);
    EXPECT_TRUE(child("lstZoom")->isVisible());
    host_.boxAnswers = {BoxAnswer::Ok};
    host_.onBox = [this] {
        EXPECT_EQ(window_->activeTool(), Tool::Arrow) << "before the texts are looked at";
        EXPECT_FALSE(child("lstZoom")->isVisible());
    };
    plotCurve("2*(");
    EXPECT_EQ(host_.boxes.size(), 1U);
    EXPECT_TRUE(child<QToolButton>("tblToolbox_Arrow")->isChecked());
    EXPECT_EQ(plot().MousePointer(), 1);
}

TEST_F(FrmMainGraphs, ZeroDividedByZeroAtTheCheckStillPlots) {
    host_.boxAnswers = {BoxAnswer::Ok};
    plotCurve("sin(t)/t");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].title, "Zephyrgraph") << "the sweep tells of its first angle, not the check";
    EXPECT_EQ(plot().Plot().Count(), 1);
    EXPECT_EQ(table().topLevelItemCount(), 1);
    graph(1).StartingAngle = 1;
    plot().Refresh();
    EXPECT_GT(bluePixels(), 20);
}

TEST_F(FrmMainGraphs, AZoomClickOnThePlotAtTheLastPercentageWraps) {
    window_->pressTool(Tool::Zoom);
    auto* list = child<QListWidget>("lstZoom");
    list->setCurrentRow(12);
    QWidget* page = child("picGraph");
    QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(list->currentRow(), 13);
    EXPECT_EQ(plot().Zoom(), 500);
    QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_EQ(plot().Zoom(), 25);
    EXPECT_EQ(settings.ZoomListIndex, 0);
}

TEST_F(FrmMainGraphs, AnAspectClickOnThePlotStepsThroughTheRatios) {
    window_->pressTool(Tool::Aspect);
    QWidget* page = child("picGraph");
    for (const float ratio : {2.5F, 3.5F, 4.5F, 1.5F}) {
        QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        EXPECT_FLOAT_EQ(plot().AspectRatio(), ratio);
    }
}

TEST_F(FrmMainGraphs, TheSwatchShowsTheMarkerAndIsEmptyWithoutOne) {
    plotCurve("2");
    const auto inked = [this] {
        const QImage image = table().topLevelItem(0)->icon(0).pixmap(46, 18).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) > 0) ++count;
        return count;
    };
    EXPECT_EQ(inked(), 0);
    graph(1).Series.AllowMarker = true;
    graph(1).Series.Marker.Font.Name = "Arial";
    clickRow(0);
    click("cmdReplace");
    EXPECT_GT(inked(), 10);
}

TEST_F(FrmMainGraphs, AMarkerPictureThatIsMissingOrBadGivesAnEmptySwatchAndNoMessage) {
    plotCurve("2");
    Marker& marker = graph(1).Series.Marker;
    graph(1).Series.AllowMarker = true;
    marker.UsePicture = true;
    marker.PicturePath = directory_.write("bad.bmp", "no picture");
    marker.MaskPicturePath = directory_.file("missing.bmp");
    clickRow(0);
    click("cmdReplace");
    EXPECT_EQ(table().topLevelItemCount(), 1);
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmMainGraphs, TheExpressionListFillsTheEquation) {
    directory_.write("expr.dat", "\"Polar Graph 1.0\"\r\n\"sin(3*t)\"\r\n");
    QTimer::singleShot(0, [] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        ASSERT_EQ(dialog->objectName(), "frmExpr");
        dialog->findChild<QListWidget*>("lstExpr")->setCurrentRow(0);
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdOk"), Qt::LeftButton);
    });
    click("cmdExpr");
    EXPECT_EQ(equation().text(), "sin(3*t)");
    EXPECT_TRUE(child("cmdPlot")->isEnabled());
}

TEST_F(FrmMainGraphs, TheTableOfARowIsShown) {
    plotCurve("a*2", "a=1");
    graph(1).Step = 90;
    clickRow(0);
    int rows = 0;
    QTimer::singleShot(0, [&] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        ASSERT_EQ(dialog->objectName(), "frmTable");
        EXPECT_EQ(dialog->findChild<QLabel*>("lblFunction")->text(), "a*2");
        EXPECT_EQ(dialog->findChild<QLabel*>("lblCoefficient")->text(), "a=1");
        rows = dialog->findChild<QTreeView*>("lvwData")->model()->rowCount();
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdExit"), Qt::LeftButton);
    });
    choose(9);
    EXPECT_EQ(rows, 5);
    EXPECT_FALSE(child("pgbProgressBar")->isVisible());
}

TEST_F(FrmMainGraphs, AFaultInTheTablesScriptsIsToldAndTheBarIsGone) {
    plotCurve("2");
    graph(1).Equation = "log(0*t)";
    clickRow(0);
    host_.boxAnswers = {BoxAnswer::Ok};
    choose(9);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '5':\n\nInvalid procedure call or argument");
    EXPECT_FALSE(child("pgbProgressBar")->isVisible());
}

TEST_F(FrmMainGraphs, PropertiesApplyToTheSelectedRowWhichStaysSelected) {
    plotCurve("2");
    plotCurve("3");
    clickRow(1);
    QTimer::singleShot(0, [this] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        ASSERT_EQ(dialog->objectName(), "frmProperties");
        dialog->findChild<QRadioButton*>("optMcustom")->setChecked(true);
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdApply"), Qt::LeftButton);
        EXPECT_EQ(selected(), std::vector<int>{1});
        EXPECT_FALSE(dialog->findChild<QWidget*>("cmdApply")->isEnabled());
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
    });
    choose(11);
    EXPECT_FALSE(graph(1).Series.AllowMarker);
    EXPECT_TRUE(graph(2).Series.AllowMarker) << "Cancel keeps what Apply did";
    EXPECT_EQ(selected(), std::vector<int>{1});
}

TEST_F(FrmMainGraphs, AfterPropertiesTheRowsColoursAreKeptByReplace) {
    plotCurve("2");
    clickRow(0);
    const Colour fresh = rgb(1, 2, 3);
    host_.colourAnswers = {fresh};
    QTimer::singleShot(0, [] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdLcolor"), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdOK"), Qt::LeftButton);
    });
    choose(11);
    EXPECT_EQ(graph(1).Series.Pen.FillColor, fresh);
    click("cmdReplace");
    EXPECT_EQ(graph(1).Series.Pen.FillColor, fresh);
}

TEST_F(FrmMainGraphs, ARedrawDuringAnAnimationLeavesItWhole) {
    plotCurve("a*2", "a=1");
    plotCurve("a+1", "a=2");
    const int whole = bluePixels();
    graph(2).Delay = 1;
    clickRow(1);
    int pumps = 0;
    int during = 0;
    host_.onPump = [&] {
        if (++pumps == 300) window_->menuAction("mnuViewRulerShow")->trigger();
        if (pumps == 180) plot().Refresh();
        if (pumps == 182) during = bluePixels();
        EXPECT_FALSE(child("tblToolbar_open")->isEnabled()) << "still locked";
        host_.now += 1;
    };
    choose(6);
    host_.onPump = nullptr;
    EXPECT_GT(during, whole / 2) << "the other curve, and what has been painted of this one";
    EXPECT_GE(pumps, 361) << "it goes on to its last angle";
    EXPECT_NEAR(bluePixels(), whole, whole / 20) << "neither curve has the other's coefficient";
    EXPECT_TRUE(child("tblToolbar_open")->isEnabled());
}

}  // namespace
}  // namespace zg
