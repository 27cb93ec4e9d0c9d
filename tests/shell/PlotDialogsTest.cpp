// The dialogs that choose a rose and restyle the plot, through their controls.

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>
#include <fstream>

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/FieldMarks.h"
#include "platform/PolarGraphWidget.h"
#include "platform/QtPicture.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmAddLabel.h"
#include "shell/FrmChangeRadius.h"
#include "shell/FrmGridFonts.h"
#include "shell/FrmOptions.h"
#include "shell/FrmOptionsLegend.h"
#include "shell/FrmSelectWindRose.h"
#include "shell/StartSequence.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/Raises.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

const std::string sample = inSources("data/samples/LOVETT_1988.frq");

std::string readBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class PlotOptions : public ::testing::Test, protected FormDriver {
 protected:
    void SetUp() override {
        startSettings();
        widget_ = std::make_unique<PolarGraphWidget>(host_, modPolarGraph, PropertyBag());
        widget_->resize(500, 500);
        widget_->show();
    }

    PolarGraph& plot() { return widget_->graph(); }
    void load() { plot().OpenFreqFile(sample); }
    template <typename Form>
    void open() {
        form_ = std::make_unique<Form>(host_, plot());
        showActive(*form_);
    }
    QWidget& driven() override { return *form_; }
    std::string stored(int line) {
        const std::string text = directory_.read("Zephyrgraph.cfg");
        std::size_t at = 0;
        for (int i = 1; i < line; ++i) at = text.find("\r\n", at) + 2;
        return text.substr(at, text.find("\r\n", at) - at);
    }
    QImage page() { return widget_->pageImage().copy(); }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<PolarGraphWidget> widget_;
    std::unique_ptr<QDialog> form_;
};

TEST_F(PlotOptions, ARoseIsChosenByItsNumber) {
    load();
    modPolarGraph.GraphTitle = "kept";
    const std::string label = modPolarGraph.FrqDirectionLabel(1);
    const QImage before = page();
    open<frmSelectWindRose>();
    EXPECT_EQ(form_->windowTitle(), "Select Wind Rose to Plot");
    auto* list = child<QComboBox>("cboWindRoseNumber");
    ASSERT_EQ(list->count(), 9);
    EXPECT_EQ(list->currentText().toStdString(), "1 - " + modPolarGraph.FrqRoseTitle(1));
    EXPECT_EQ(list->itemText(2).toStdString(), "3 - " + modPolarGraph.FrqRoseTitle(3));
    list->setCurrentIndex(2);
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.CurrentRose, 3);
    EXPECT_EQ(modPolarGraph.GraphCaption, modPolarGraph.FrqRoseCaption(3));
    EXPECT_EQ(modPolarGraph.GraphTitle, "kept");
    EXPECT_EQ(modPolarGraph.FrqDirectionLabel(1), label);
    EXPECT_NE(page(), before);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(PlotOptions, TheChoiceStartsAtTheRoseOnShowAndTheSubtitleStays) {
    load();
    modPolarGraph.CurrentRose = 4;
    modPolarGraph.GraphSubTitle = "kept too";
    open<frmSelectWindRose>();
    auto* list = child<QComboBox>("cboWindRoseNumber");
    EXPECT_EQ(list->currentIndex(), 3);
    EXPECT_EQ(list->currentText().toStdString(), "4 - " + modPolarGraph.FrqRoseTitle(4));
    list->setCurrentIndex(8);
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.CurrentRose, 9);
    EXPECT_EQ(modPolarGraph.GraphSubTitle, "kept too");
}

TEST_F(PlotOptions, EscapeLeavesTheRoseAndEnterTakesIt) {
    load();
    open<frmSelectWindRose>();
    child<QComboBox>("cboWindRoseNumber")->setCurrentIndex(5);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(modPolarGraph.CurrentRose, 1);
    open<frmSelectWindRose>();
    auto* list = child<QComboBox>("cboWindRoseNumber");
    list->setFocus();
    list->setCurrentIndex(5);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(modPolarGraph.CurrentRose, 6);
    EXPECT_EQ(modPolarGraph.GraphCaption, modPolarGraph.FrqRoseCaption(6));
}

TEST_F(PlotOptions, AFileOfOneRoseLeavesNothingToChoose) {
    // The heading of the sample and its first block.
    const std::string text = readBytes(sample);
    std::size_t end = 0;
    for (int line = 0; line < 9 + 22; ++line) end = text.find('\n', end) + 1;
    plot().OpenFreqFile(directory_.write("one.frq", text.substr(0, end)));
    ASSERT_EQ(modPolarGraph.FrqRoseCount, 1);
    open<frmSelectWindRose>();
    EXPECT_EQ(child<QComboBox>("cboWindRoseNumber")->count(), 0);
    EXPECT_FALSE(child("cboWindRoseNumber")->isEnabled());
    EXPECT_EQ(fieldMark(*child("cboWindRoseNumber")), buttonFaceColour);
    EXPECT_FALSE(child("cmdOk")->isEnabled());
    QTest::keyClick(form_.get(), Qt::Key_Return);
    EXPECT_EQ(modPolarGraph.CurrentRose, 1);
}

TEST_F(PlotOptions, ATitleWithAHyphenDoesNoHarm) {
    load();
    modPolarGraph.FrqRoseTitle(2) = "Jan-Mar - Hours 01-06";
    open<frmSelectWindRose>();
    child<QComboBox>("cboWindRoseNumber")->setCurrentIndex(1);
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.CurrentRose, 2);
}

TEST_F(PlotOptions, ALongTitleLeavesTheDialogOnTheScreenAndIsItsTip) {
    load();
    open<frmSelectWindRose>();
    const int width = form_->width();
    const std::string title = "<b>" + std::string(300, 'w') + "</b> & more";
    modPolarGraph.FrqRoseTitle(2) = title;
    modPolarGraph.CurrentRose = 2;
    open<frmSelectWindRose>();
    EXPECT_EQ(form_->width(), width);
    auto* roses = child<QComboBox>("cboWindRoseNumber");
    const QString escaped = "<p>" + QString::fromStdString("2 - " + title).toHtmlEscaped() + "</p>";
    EXPECT_EQ(roses->toolTip(), escaped);
    EXPECT_EQ(roses->itemData(1, Qt::ToolTipRole).toString(), escaped);
    roses->setCurrentIndex(0);
    EXPECT_EQ(roses->toolTip(), roses->itemText(0));
    roses->setCurrentIndex(1);
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.CurrentRose, 2);
}

TEST_F(PlotOptions, CancellingTheChoiceOnlyCloses) {
    load();
    open<frmSelectWindRose>();
    child<QComboBox>("cboWindRoseNumber")->setCurrentIndex(4);
    click("cmdCancel");
    EXPECT_EQ(modPolarGraph.CurrentRose, 1);
}

TEST_F(PlotOptions, WithOneRoseThereIsNothingToChoose) {
    open<frmSelectWindRose>();
    EXPECT_EQ(modPolarGraph.FrqRoseCount, 1) << "also before any file";
    EXPECT_FALSE(child("cboWindRoseNumber")->isEnabled());
    EXPECT_EQ(fieldMark(*child("cboWindRoseNumber")), buttonFaceColour);
    EXPECT_FALSE(child("cmdOk")->isEnabled());
    EXPECT_EQ(child<QComboBox>("cboWindRoseNumber")->placeholderText(), "No file has been opened");
    modPolarGraph.FrqLoaded = true;
    open<frmSelectWindRose>();
    EXPECT_EQ(child<QComboBox>("cboWindRoseNumber")->placeholderText(), "The file has only one wind rose");
}

TEST_F(PlotOptions, AFileWithoutRosesIsAnErrorAtTheDialog) {
    load();
    modPolarGraph.FrqRoseCount = 0;
    modPolarGraph.FrqRoseTitle.redim(0);
    EXPECT_RAISES(9, "Subscript out of range", frmSelectWindRose(host_, plot()));
}

TEST_F(PlotOptions, ASecondLoadResetsRoseUnitAndKnotTable) {
    load();
    modPolarGraph.CurrentRose = 3;
    open<frmOptionsLegend>();
    child<QRadioButton>("optKnots")->click();
    click("cmdOk");
    EXPECT_TRUE(modPolarGraph.KnotTableReady);
    load();
    EXPECT_EQ(modPolarGraph.CurrentRose, 1);
    EXPECT_TRUE(modPolarGraph.ClassesFromFile);
    EXPECT_FALSE(modPolarGraph.ClassesInKnots);
    EXPECT_FALSE(modPolarGraph.KnotTableReady);
}

TEST_F(PlotOptions, TheRadiusActsAtOnceAndCancelPutsTheOldOneBack) {
    load();
    const QImage before = page();
    open<frmChangeRadius>();
    EXPECT_EQ(form_->windowTitle(), "Change Radius");
    auto* list = child<QComboBox>("cboRadiusPercent");
    ASSERT_EQ(list->count(), 20);
    EXPECT_EQ(list->itemText(0), "5%");
    EXPECT_EQ(list->itemText(19), "100%");
    EXPECT_EQ(list->currentText(), "25%");
    for (const int row : {0, 19, 9}) list->setCurrentIndex(row);
    EXPECT_EQ(plot().Polar().Radius, 10);
    EXPECT_NE(page(), before);
    click("cmdCancel");
    EXPECT_EQ(plot().Polar().Radius, 5);
    EXPECT_EQ(page(), before);
    EXPECT_EQ(settings.RadiusText, "25%");
}

TEST_F(PlotOptions, EscapeIsACancelOfTheRadiusToo) {
    plot().Polar().Radius = 3.3F;
    open<frmChangeRadius>();
    EXPECT_EQ(child<QComboBox>("cboRadiusPercent")->currentIndex(), -1);
    child<QComboBox>("cboRadiusPercent")->setCurrentIndex(9);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_EQ(plot().Polar().Radius, 3.3F) << "a radius that no row has comes back too";
}

TEST_F(PlotOptions, OkStoresTheRadiusText) {
    open<frmChangeRadius>();
    child<QComboBox>("cboRadiusPercent")->setCurrentIndex(7);
    click("cmdOk");
    EXPECT_EQ(settings.RadiusText, "40%");
    EXPECT_EQ(stored(34), "40%");
}

TEST_F(PlotOptions, LabelsShowTheThreeLinesAndApplyKeepsTheDialog) {
    load();
    open<frmAddLabel>();
    EXPECT_EQ(form_->windowTitle(), "Edit Label");
    EXPECT_EQ(child<QLineEdit>("txtLabelLine1")->text().toStdString(), modPolarGraph.GraphTitle);
    EXPECT_EQ(child<QLineEdit>("txtLabelLine3")->text().toStdString(), modPolarGraph.GraphCaption);
    click("cmdClear");
    child<QLineEdit>("txtLabelLine2")->setText("Second");
    const QImage before = page();
    click("cmdApply");
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(modPolarGraph.GraphTitle, "");
    EXPECT_EQ(modPolarGraph.GraphSubTitle, "Second");
    EXPECT_NE(page(), before);
    child<QLineEdit>("txtLabelLine2")->setText("Dropped");
    click("cmdCancel");
    EXPECT_EQ(modPolarGraph.GraphSubTitle, "Second") << "Cancel keeps what Apply did";
}

TEST_F(PlotOptions, TheLabelFontIsPickedStoredAndReset) {
    load();
    open<frmAddLabel>();
    host_.fontAnswers = {FontRecord{0, "Courier", 12, true, false}, std::nullopt};
    host_.colourAnswers = {rgb(200, 0, 0), std::nullopt};
    click("cmdSelectFont");
    EXPECT_EQ(host_.fontPicks[0], factoryLabelFont());
    click("cmdSelectColor");
    EXPECT_EQ(modPolarGraph.LabelFont, factoryLabelFont()) << "a working copy";
    click("cmdSelectFont");
    click("cmdSelectColor");
    EXPECT_EQ(host_.colourPicks[1], rgb(200, 0, 0));
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.LabelFont, (FontRecord{200, "Courier", 12, true, false}));
    EXPECT_EQ(stored(36), "Courier");
    EXPECT_EQ(stored(49), "Courier");
    EXPECT_FALSE(form_->isVisible());
    open<frmAddLabel>();
    click("cmdResetToDefaults");
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.LabelFont, factoryLabelFont());
}

TEST_F(PlotOptions, LinesKeepTheirBytes) {
    load();
    modPolarGraph.GraphTitle = "\xE9t\xE9";
    open<frmAddLabel>();
    click("cmdApply");
    EXPECT_EQ(modPolarGraph.GraphTitle, "\xE9t\xE9");
}

TEST_F(PlotOptions, GridFontsEditThreeFontsAndTheGridColour) {
    load();
    modPolarGraph.LabelFont.size = 31;
    open<frmGridFonts>();
    EXPECT_EQ(form_->windowTitle(), "Edit Grid Fonts and Colors");
    host_.fontAnswers = {FontRecord{0, "A", 9, false, false}, FontRecord{0, "B", 10, false, true},
                         FontRecord{0, "C", 11, true, false}};
    host_.colourAnswers = {rgb(1, 0, 0), rgb(2, 0, 0), rgb(3, 0, 0), rgb(4, 0, 0)};
    for (const char* suffix : {"_NSEW", "_Percents", "_LegTxt"}) {
        click((std::string("cmdSelectFont") + suffix).c_str());
        click((std::string("cmdSelectColor") + suffix).c_str());
    }
    click("cmdSelectColor_GridLines");
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.DirectionFont, (FontRecord{1, "A", 9, false, false}));
    EXPECT_EQ(modPolarGraph.PercentFont, (FontRecord{2, "B", 10, false, true}));
    EXPECT_EQ(modPolarGraph.LegendFont, (FontRecord{3, "C", 11, true, false}));
    EXPECT_EQ(modPolarGraph.GridLineColor, 4);
    EXPECT_EQ(modPolarGraph.LabelFont.size, 31);
    EXPECT_EQ(stored(54), "A");
    EXPECT_EQ(trimmed(stored(68)), "4");
}

TEST_F(PlotOptions, DefaultButtonsOfTheGridActOnTheWorkingCopyOnly) {
    load();
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630) << "as the factory file reads back";
    modPolarGraph.PercentFont.size = 20;
    open<frmGridFonts>();
    for (const char* suffix : {"_NSEW", "_Percents", "_LegTxt", "_GridLines"})
        click((std::string("cmdResetToDefaults") + suffix).c_str());
    EXPECT_EQ(modPolarGraph.PercentFont.size, 20);
    click("cmdApply");
    EXPECT_EQ(modPolarGraph.PercentFont, factoryPercentFont());
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737632);
}

TEST_F(PlotOptions, TheLegendSpeaksInKnotsAndConvertsItsLimits) {
    load();
    open<frmOptionsLegend>();
    EXPECT_EQ(form_->windowTitle(), "Edit Wind Speed Classes Legend");
    EXPECT_TRUE(child<QRadioButton>("optMetersPerSecond")->isChecked());
    EXPECT_EQ(child<QLabel>("lblClass1_Min")->text(), "0.5 m/s");
    EXPECT_EQ(child<QLabel>("lblClass1_Max")->text(), "1.8 m/s");
    EXPECT_EQ(child<QLabel>("lblClass6_Min")->text(), "10.8 m/s");
    child<QRadioButton>("optKnots")->click();
    EXPECT_EQ(child<QLabel>("lblClass1_Min")->text(), "0.97 knots");
    EXPECT_EQ(child<QLabel>("lblClass1_Max")->text(), "3.5 knots");
    EXPECT_FALSE(modPolarGraph.ClassesInKnots);
    const double share = modPolarGraph.FrqFraction(1, 1);
    click("cmdApply");
    EXPECT_TRUE(modPolarGraph.ClassesInKnots);
    EXPECT_FALSE(modPolarGraph.ClassesFromFile);
    EXPECT_EQ(modPolarGraph.LegendClassLimit(0), "9.72E-01") << "the calm threshold in its own form";
    EXPECT_EQ(modPolarGraph.LegendClassLimit(1), "0.97");
    EXPECT_EQ(modPolarGraph.FrqFraction(1, 1), share);
}

TEST_F(PlotOptions, ClassColoursArePickedStoredAndReset) {
    load();
    open<frmOptionsLegend>();
    host_.colourAnswers = {rgb(9, 9, 9), std::nullopt};
    click("cmdClassColor_5");
    click("cmdClassColor_0");
    EXPECT_EQ(host_.colourPicks[1], rgb(255, 0, 0));
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.WindClassColor[5], static_cast<float>(rgb(9, 9, 9)));
    EXPECT_EQ(modPolarGraph.WindClassColor[0], 255);
    EXPECT_EQ(trimmed(stored(47)), "592137");
    EXPECT_EQ(stored(40), "True");
    open<frmOptionsLegend>();
    click("cmdDefault");
    EXPECT_NE(modPolarGraph.WindClassColor, factoryWindClassColor());
    click("cmdOk");
    EXPECT_EQ(modPolarGraph.WindClassColor, factoryWindClassColor());
}

TEST_F(PlotOptions, KnotsBeforeAFileAreNoError) {
    open<frmOptionsLegend>();
    child<QRadioButton>("optKnots")->click();
    EXPECT_EQ(child<QLabel>("lblClass1_Min")->text(), "");
    click("cmdApply");
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(PlotOptions, AFontThatDoesNotExistIsDrawnInAnother) {
    load();
    open<frmAddLabel>();
    host_.fontAnswers = {FontRecord{0, "No Such Face At All", 10, false, false}};
    click("cmdSelectFont");
    click("cmdApply");
    EXPECT_EQ(modPolarGraph.LabelFont.name, "No Such Face At All");
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(PlotOptions, OptionsLeaveTheTablesOfTheRoseOnShowAlone) {
    load();
    modPolarGraph.CurrentRose = 4;
    open<frmOptions>();
    EXPECT_EQ(modPolarGraph.CurrentRose, 4);
    EXPECT_EQ(modPolarGraph.FrqRoseCount, 9);
    EXPECT_EQ(form_->windowTitle(), "Options");
    EXPECT_EQ(child<QLineEdit>("txtUnitIn")->text(), "0.5");
    EXPECT_EQ(child<QLineEdit>("txtRadiusIn")->text(), "25");
    EXPECT_EQ(child<QLineEdit>("txtRadius")->text(), "2.5");
    EXPECT_EQ(child<QLineEdit>("txtDiameter")->text(), "5");
}

TEST_F(PlotOptions, ThePreviewShowsTheRoseOnShowFromTablesOfItsOwn) {
    load();
    modPolarGraph.CurrentRose = 4;
    modPolarGraph.ClassesFromFile = false;
    modPolarGraph.ClassesInKnots = true;
    open<frmOptions>();
    EXPECT_FALSE(modPolarGraph.KnotTableReady) << "the preview made the table of its own legend";
    plot().shrinkTexts(true);  // as in the main window
    plot().Refresh();
    EXPECT_TRUE(modPolarGraph.KnotTableReady);
    EXPECT_EQ(child<PolarGraphWidget>("pgPreview")->pageImage(), page());
}

TEST_F(PlotOptions, OptionsApplyWhatThePreviewShows) {
    load();
    open<frmOptions>();
    host_.colourAnswers = {rgb(1, 1, 1), rgb(2, 2, 2), rgb(3, 3, 3), rgb(4, 4, 4)};
    child<QLineEdit>("txtRadiusIn")->setText("40");
    child<QLineEdit>("txtRadiusIn")->setFocus();
    QTest::keyClick(child("txtRadiusIn"), Qt::Key_Tab);
    child<QLineEdit>("txtUnitIn")->setText("0.25");
    child<QLineEdit>("txtUnitIn")->setFocus();
    QTest::keyClick(child("txtUnitIn"), Qt::Key_Tab);
    child<QTabWidget>("tbsOption")->setCurrentIndex(1);
    for (const char* name : {"cmdGridColor", "cmdFillColor", "cmdLabelColor"}) click(name);
    child<QTabWidget>("tbsOption")->setCurrentIndex(2);
    click("cmdBkColor");
    EXPECT_EQ(plot().Polar().Unit, 0.5F) << "a working copy";
    click("cmdApply");
    EXPECT_EQ(plot().Polar().Unit, 0.25F);
    EXPECT_EQ(plot().Polar().Radius, 8);
    EXPECT_EQ(plot().Polar().GridColor, rgb(1, 1, 1));
    EXPECT_EQ(plot().Polar().FillColor, rgb(2, 2, 2));
    EXPECT_EQ(plot().Polar().LabelColor, rgb(3, 3, 3));
    EXPECT_EQ(plot().BackColor(), rgb(4, 4, 4));
}

TEST_F(PlotOptions, OptionsRefuseNumbersThatAreNone) {
    open<frmOptions>();
    for (const char* text : {"", "abc", "0", "-1", "1e9"}) {
        child<QLineEdit>("txtRadiusIn")->setText(text);
        child<QLineEdit>("txtRadiusIn")->setFocus();
        QTest::keyClick(child("txtRadiusIn"), Qt::Key_Tab);
        EXPECT_EQ(child<QLineEdit>("txtRadiusIn")->text(), "25") << text;
    }
}

TEST_F(PlotOptions, ABackgroundPictureIsKeptUnderTheNumberOfItsStyle) {
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::green);
    const std::string path = directory_.file("green.bmp");
    ASSERT_TRUE(picture.save(QString::fromStdString(path)));
    std::filesystem::create_directory(directory_.file("Bitmap"));
    directory_.write("Bitmap/WP1.pgw", "old");
    open<frmOptions>();
    child<QTabWidget>("tbsOption")->setCurrentIndex(2);
    host_.openAnswers = {path};
    click("cmdBitmap");
    child<QRadioButton>("optBmp_2")->click();
    click("cmdOk");
    EXPECT_EQ(plot().PictureStyle(), 2);
    const auto found = findBackgroundPicture();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->style, 2);
    EXPECT_EQ(backgroundPicturePath("WP1.pgw"), "");
    EXPECT_EQ(loadPicture(found->path)->width(), 20);
    open<frmOptions>();
    child<QTabWidget>("tbsOption")->setCurrentIndex(2);
    click("cmdClear");
    click("cmdApply");
    EXPECT_FALSE(findBackgroundPicture());
    EXPECT_EQ(plot().Picture(), nullptr);
}

TEST_F(PlotOptions, ABackgroundThatIsNoPictureIsTold) {
    open<frmOptions>();
    child<QTabWidget>("tbsOption")->setCurrentIndex(2);
    host_.openAnswers = {directory_.write("no.bmp", "not a picture"), directory_.write("zero.bmp", "")};
    host_.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    click("cmdBitmap");
    click("cmdBitmap");
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '481':\n\nInvalid picture");
    EXPECT_EQ(host_.boxes[1].text, "Run-time error '481':\n\nInvalid picture");
}

TEST_F(PlotOptions, APictureFarTooLargeIsRefusedWithoutTakingTheMemory) {
    // A bitmap of 20,000 x 20,000 pixels of 32 bits, of which the file has only the header.
    std::string head("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x20\x4E\0\0\x20\x4E\0\0\x01\0\x20\0", 30);
    head.resize(54, '\0');
    const std::string path = directory_.write("huge.bmp", head);
    std::filesystem::resize_file(path, 54 + std::uintmax_t{20'000} * 20'000 * 4);
    EXPECT_RAISES(481, "Invalid picture", loadPicture(path));
}

}  // namespace
}  // namespace zg
