#include "dialogs/gridded/FrmProjectionInfo.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "base/Paths.h"
#include "dialogs/gridded/DatumTable.h"
#include "headers/InfoView.h"
#include "platform/FieldMarks.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmProjectionInfo : public ::testing::Test, protected FormDriver {
 protected:
    void SetUp() override { program_.deliver({"datums.csv"}); }
    void open() {
        form_ = std::make_unique<frmProjectionInfo>(host_);
        QObject::connect(form_.get(), &QDialog::accepted, [this] { ++accepted_; });
        showActive(*form_);
    }
    QWidget& driven() override { return *form_; }
    QComboBox& combo(const char* name) { return *child<QComboBox>(name); }
    /// Selects an entry of a list as a user does.
    void pick(const char* name, const QString& entry) {
        QComboBox& list = combo(name);
        const int row = list.findText(entry);
        ASSERT_GE(row, 0) << entry.toStdString();
        list.setCurrentIndex(row);
        emit list.activated(row);
    }
    void typeCode(const char* text) {
        combo("cboCode").lineEdit()->clear();
        QTest::keyClicks(combo("cboCode").lineEdit(), QString::fromLatin1(text));
    }
    std::string ok(BoxAnswer answer = BoxAnswer::Ok) {
        host_.boxes.clear();
        host_.boxAnswers = {answer};
        click("cmdOK");
        if (host_.boxes.size() != 1) return "boxes: " + std::to_string(host_.boxes.size());
        EXPECT_EQ(host_.boxes[0].title, "Error");
        return host_.boxes[0].text;
    }
    std::string shownFrame() {
        std::string names;
        for (const char* name : {"UTM1", "LCC1", "TTM1", "PS1", "EM1", "LAZA1"})
            if (child(name)->isVisible()) names += name;
        return names;
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    int accepted_ = 0;
    std::unique_ptr<frmProjectionInfo> form_;
};

TEST_F(FrmProjectionInfo, StartsWithUtmAndNoDatum) {
    open();
    EXPECT_EQ(form_->windowTitle(), "Map Projection Information for Extraction Site Coordinates");
    EXPECT_EQ(combo("cboProj").count(), 7);
    EXPECT_EQ(combo("cboProj").currentText(), "Universal Transverse Mercator (UTM):");
    EXPECT_EQ(shownFrame(), "UTM1");
    EXPECT_EQ(combo("cboCode").currentText(), "");
    QStringList codes;
    for (int i = 0; i < combo("cboCode").count(); ++i) codes << combo("cboCode").itemText(i);
    EXPECT_EQ(codes, (QStringList{"", "WGS-84", "NAS-C", "NWS-84"}));
    EXPECT_EQ(fieldMark(combo("cboCode")), buttonFaceColour);
    for (const char* hidden : {"cboDatum1", "lblCoor1b", "lstReg1", "lblCoor1c"})
        EXPECT_FALSE(child(hidden)->isVisible()) << hidden;
    EXPECT_EQ(combo("cboLCCRLAT01").currentText(), "N");
    EXPECT_EQ(combo("cboLCCRLON01").currentText(), "E");
    EXPECT_EQ(child<QGroupBox>("frmCoorSys1")->title(), "DATUM");
    EXPECT_EQ(child<QPushButton>("cmdNativeProjection")->text().remove('&'),
              "Set to Native Projection of the Input Data");
}

TEST_F(FrmProjectionInfo, AnEntryShowsItsFrame) {
    open();
    const std::map<std::string, std::string> frames = {{"Geodetic (Latitude/Longitude):", ""},
                                                       {"Universal Transverse Mercator (UTM):", "UTM1"},
                                                       {"Lambert Conformal Conic (LCC):", "LCC1"},
                                                       {"Tangential Transverse Mercator (TTM):", "TTM1"},
                                                       {"Polar Stereographic (PS):", "PS1"},
                                                       {"Equatorial Mercator (EM):", "EM1"},
                                                       {"Lambert Azimuthal Equal Area (LAZA):", "LAZA1"}};
    for (const auto& [entry, frame] : frames) {
        pick("cboProj", QString::fromStdString(entry));
        EXPECT_EQ(shownFrame(), frame) << entry;
    }
}

TEST_F(FrmProjectionInfo, KeysChooseAProjection) {
    open();
    combo("cboProj").setFocus();
    QTest::keyClick(&combo("cboProj"), Qt::Key_Down);
    EXPECT_EQ(shownFrame(), "LCC1");
    QTest::keyClicks(&combo("cboProj"), "zzz");
    EXPECT_EQ(combo("cboProj").currentText(), "Lambert Conformal Conic (LCC):")
        << "nothing can be typed there";
}

TEST_F(FrmProjectionInfo, LatitudesAndLongitudesNeedADatumOnly) {
    projection.PMAP = "LL";
    open();
    EXPECT_EQ(combo("cboProj").currentText(), "Geodetic (Latitude/Longitude):");
    EXPECT_EQ(shownFrame(), "");
    EXPECT_EQ(ok(), "Please select a DATUM.");
    EXPECT_EQ(fieldMark(combo("cboCode")), yellowMark);
    EXPECT_EQ(accepted_, 0);
    typeCode("any");
    click("cmdOK");
    EXPECT_EQ(accepted_, 1);
    EXPECT_EQ(projection.DATUM, "any");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(FrmProjectionInfo, TheRecordFillsTheFields) {
    projection = {"LCC", "100.5", "-20", "18", "S", "40.5N", "97.25W", "33N", "45S", "NAS-C"};
    open();
    EXPECT_EQ(combo("cboProj").currentText(), "Lambert Conformal Conic (LCC):");
    EXPECT_EQ(box("txtLCCRLAT01").text(), "40.5");
    EXPECT_EQ(combo("cboLCCRLAT01").currentText(), "N");
    EXPECT_EQ(box("txtLCCRLON01").text(), "97.25");
    EXPECT_EQ(combo("cboLCCRLON01").currentText(), "W");
    EXPECT_EQ(box("txtLCCRLAT11").text(), "33");
    EXPECT_EQ(box("txtLCCRLAT21").text(), "45");
    EXPECT_EQ(combo("cboLCCRLAT21").currentText(), "S");
    EXPECT_EQ(box("txtLCCFEast").text(), "100.5");
    EXPECT_EQ(box("txtLCCFNorth").text(), "-20");
    EXPECT_EQ(combo("cboCode").currentText(), "NAS-C");
    EXPECT_EQ(combo("cboCont1").currentText(), "NORTH AMERICA");
    EXPECT_EQ(combo("cboDatum1").currentText(), "NORTH AMERICAN 1927 - Clarke 1866");
    ASSERT_NE(child<QListWidget>("lstReg1")->currentItem(), nullptr);
    EXPECT_EQ(child<QListWidget>("lstReg1")->currentItem()->text(), "MEAN FOR CONUS");
    EXPECT_EQ(fieldMark(combo("cboCode")), cleanMark);
    const ProjectionRecord before = projection;
    click("cmdOK");
    EXPECT_EQ(accepted_, 1);
    EXPECT_EQ(projection.RLON0, before.RLON0);
    EXPECT_EQ(projection.XLAT2, before.XLAT2);
    EXPECT_EQ(projection.FNORTH, before.FNORTH);
}

TEST_F(FrmProjectionInfo, TheHemisphereHasWords) {
    projection = {"UTM", "", "", "18", "S", "", "", "", "", "NAR-C"};
    open();
    EXPECT_EQ(combo("cboLSOHEM1").currentText(), "Southern");
    pick("cboLSOHEM1", "Northern");
    click("cmdOK");
    EXPECT_EQ(projection.UTMHEM, "N");
    EXPECT_EQ(projection.IUTMZN, "18");
}

TEST_F(FrmProjectionInfo, APolarProjectionPassesOnlyFromTheData) {
    projection = {"PS", "", "", "", "", "90N", "97W", "60N", "", "WGS-84"};
    open();
    EXPECT_EQ(combo("cboProj").currentText(), "Polar Stereographic:");
    EXPECT_EQ(shownFrame(), "PS1");
    pick("cboProj", "Polar Stereographic (PS):");
    EXPECT_EQ(shownFrame(), "PS1");
    EXPECT_EQ(ok(), "Please choose a projection from the drop-down box.");
    EXPECT_EQ(accepted_, 0);
    modInfoViewDLL.result.PMAP = "ps";
    modInfoViewDLL.result.DATUM = "wgs-84";
    modInfoViewDLL.result.RLAT0 = 90;
    modInfoViewDLL.result.RLON0 = -97;
    modInfoViewDLL.result.XLAT1 = 60;
    click("cmdNativeProjection");
    EXPECT_EQ(combo("cboProj").currentText(), "Polar Stereographic:");
    click("cmdOK");
    EXPECT_EQ(accepted_, 1);
    EXPECT_EQ(projection.PMAP, "PS");
    EXPECT_EQ(projection.RLAT0, "90N");
}

TEST_F(FrmProjectionInfo, TheNativeProjectionUndoesWhatWasTyped) {
    modInfoViewDLL.result.PMAP = "UTM";
    modInfoViewDLL.result.IUTMZN = 18;
    modInfoViewDLL.result.UTMHEM = "N";
    modInfoViewDLL.result.DATUM = "NAR-C";
    projection = nativeProjection();
    open();
    pick("cboProj", "Equatorial Mercator (EM):");
    box("txtUTMZone1").setText("7");
    typeCode("NWS-84");
    EXPECT_EQ(combo("cboCont1").currentText(), "GLOBAL");
    click("cmdNativeProjection");
    EXPECT_EQ(shownFrame(), "UTM1");
    EXPECT_EQ(box("txtUTMZone1").text(), "18");
    EXPECT_EQ(combo("cboCode").currentText(), "NAR-C");
    EXPECT_EQ(combo("cboCont1").currentText(), "NORTH AMERICA");
}

TEST_F(FrmProjectionInfo, ChecksAreToldAndTheMapIsTakenAllTheSame) {
    projection = {"LCC", "0", "0", "", "", "40N", "97W", "33N", "45N", "NAS-C"};
    open();
    box("txtLCCFEast").setText("");
    EXPECT_EQ(ok(), "Please provide information for all requested LCC information.");
    box("txtLCCFEast").setText("0");
    box("txtLCCRLAT21").setText("91");
    EXPECT_EQ(ok(), "Latitude must be between -90 and +90.");
    box("txtLCCRLON01").setText("-360.5");
    EXPECT_EQ(ok(), "Longitude must be between -360 and +360.");
    pick("cboProj", "Tangential Transverse Mercator (TTM):");
    EXPECT_EQ(ok(), "Please provide information for all requested TTM information.");
    EXPECT_EQ(projection.PMAP, "TTM");
    EXPECT_EQ(projection.RLAT0, "40N");
    EXPECT_TRUE(form_->isVisible());
    box("txtTTMRLAT01").setText("x");
    box("txtTTMRLON01").setText("1");
    box("txtTTMFEast").setText("1");
    box("txtTTMFNorth").setText("1");
    host_.boxes.clear();
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdOK");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '13':\n\nType mismatch");
    EXPECT_EQ(accepted_, 0);
}

TEST_F(FrmProjectionInfo, ABlankFalseEastingIsTakenAsNone) {
    projection = {"LCC", "1", "2", "0", "", "40N", "97W", "33N", "45N", "WGS-84"};
    open();
    box("txtLCCFEast").setText(" ");
    click("cmdOK");
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_EQ(projection.FEAST, "");
    EXPECT_EQ(projection.FNORTH, "2");
    EXPECT_EQ(accepted_, 1);
}

TEST_F(FrmProjectionInfo, LatitudesOfAllFramesAreWrapped) {
    projection = {"UTM", "", "", "18", "N", "", "", "", "", "NAR-C"};
    open();
    box("txtLCCRLAT01").setText("200");
    box("txtEMRLAT01").setText("-190.5");
    box("txtLZRLAT01").setText("170");
    box("txtLCCRLON01").setText("350");
    click("cmdOK");
    EXPECT_EQ(accepted_, 1);
    EXPECT_EQ(box("txtLCCRLAT01").text(), "-160");
    EXPECT_EQ(box("txtEMRLAT01").text(), "169.5");
    EXPECT_EQ(box("txtLZRLAT01").text(), "170");
    EXPECT_EQ(box("txtLCCRLON01").text(), "350") << "longitudes stay";
}

TEST_F(FrmProjectionInfo, TheCascadeLeadsToACode) {
    open();
    pick("cboCont1", "EUROPE");
    EXPECT_TRUE(combo("cboDatum1").isVisible());
    EXPECT_TRUE(child("lblCoor1b")->isVisible());
    EXPECT_FALSE(child("lstReg1")->isVisible());
    EXPECT_EQ(combo("cboDatum1").currentText(), "");
    pick("cboDatum1", "ROME 1940 - International 1924");
    EXPECT_TRUE(child("lstReg1")->isVisible());
    EXPECT_EQ(fieldMark(combo("cboCode")), buttonFaceColour);
    auto* regions = child<QListWidget>("lstReg1");
    ASSERT_EQ(regions->count(), 1);
    regions->setCurrentRow(0);
    EXPECT_EQ(combo("cboCode").currentText(), "MOD");
    EXPECT_EQ(fieldMark(combo("cboCode")), cleanMark);
    pick("cboCont1", "ASIA");
    EXPECT_EQ(regions->count(), 0);
    EXPECT_EQ(fieldMark(combo("cboCode")), buttonFaceColour);
    pick("cboDatum1", "EUROPEAN 1950 - International 1924");
    EXPECT_GT(regions->count(), 10) << "every region of the datum, whatever the continent";
}

TEST_F(FrmProjectionInfo, ATypedCodeShowsWhatItMeans) {
    open();
    typeCode("NAD27");
    EXPECT_EQ(combo("cboCode").currentText(), "NAS-C");
    EXPECT_EQ(combo("cboCont1").currentText(), "NORTH AMERICA");
    typeCode("wgs-84");
    EXPECT_EQ(combo("cboCode").currentText(), "wgs-84");
    EXPECT_EQ(combo("cboCont1").currentText(), "NORTH AMERICA") << "an unknown code changes nothing";
    typeCode("WGS-84");
    EXPECT_EQ(combo("cboCont1").currentText(), "GLOBAL");
    typeCode("MOD");
    EXPECT_EQ(child<QListWidget>("lstReg1")->currentItem()->text(), "Italy (Sardinia)");
}

TEST_F(FrmProjectionInfo, TheOldSystemOfSeventyTwoIsKnownInBothSpellings) {
    open();
    typeCode("WGS 72");
    EXPECT_EQ(combo("cboCode").currentText(), "WGS-72");
    EXPECT_EQ(combo("cboCont1").currentText(), "GLOBAL");
}

TEST_F(FrmProjectionInfo, AClickOnTheChosenRegionBringsItsCodeBack) {
    open();
    typeCode("MOD");
    typeCode("xyz");
    auto* regions = child<QListWidget>("lstReg1");
    ASSERT_EQ(regions->count(), 1);
    const QPoint place = regions->visualItemRect(regions->item(0)).center();
    QTest::mouseClick(regions->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(combo("cboCode").currentText(), "MOD");
    EXPECT_EQ(fieldMark(combo("cboCode")), cleanMark);
    QTest::mouseClick(regions->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    EXPECT_TRUE(regions->selectedItems().isEmpty());
    EXPECT_EQ(fieldMark(combo("cboCode")), buttonFaceColour);
}

TEST_F(FrmProjectionInfo, ARegionOfAnotherContinentLeadsThere) {
    open();
    pick("cboCont1", "ASIA");
    pick("cboDatum1", "EUROPEAN 1950 - International 1924");
    auto* regions = child<QListWidget>("lstReg1");
    const auto items = regions->findItems("Egypt", Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1);
    regions->setCurrentItem(items.front());
    EXPECT_EQ(combo("cboCode").currentText(), "EUR-F");
    EXPECT_EQ(combo("cboCont1").currentText(), "AFRICA");
    EXPECT_EQ(combo("cboDatum1").currentText(), "EUROPEAN 1950 - International 1924");
    EXPECT_GE(combo("cboDatum1").findText("ADINDAN - Clarke 1880"), 0) << "the datums of that continent";
    ASSERT_NE(regions->currentItem(), nullptr);
    EXPECT_EQ(regions->currentItem()->text(), "Egypt");
}

TEST_F(FrmProjectionInfo, ACodeWithoutARegionHasTheColourOfButtons) {
    open();
    const auto base = [this] { return combo("cboCode").palette().color(QPalette::Base); };
    const QPalette theme = QApplication::palette();
    ASSERT_NE(theme.color(QPalette::Button), theme.color(QPalette::Base));
    EXPECT_EQ(base(), theme.color(QPalette::Button));
    typeCode("WGS-84");
    EXPECT_EQ(base(), theme.color(QPalette::Base));
    pick("cboCont1", "EUROPE");
    EXPECT_EQ(base(), theme.color(QPalette::Button));
}

TEST_F(FrmProjectionInfo, LeavingTheCodeBringsItsCascadeBack) {
    open();
    typeCode("NAS-C");
    pick("cboCont1", "EUROPE");
    combo("cboCode").setFocus();
    child("cmdOK")->setFocus();
    EXPECT_EQ(combo("cboCont1").currentText(), "NORTH AMERICA");
    EXPECT_EQ(fieldMark(combo("cboCode")), cleanMark);
}

TEST_F(FrmProjectionInfo, ACodeOfItsOwnListFillsTheCascade) {
    projection = {"UTM", "", "", "18", "N", "", "", "", "", "NAD27"};
    open();
    EXPECT_EQ(combo("cboCode").currentText(), "NAS-C") << "the record's spelling";
    combo("cboCode").setCurrentText("NWS-84");
    EXPECT_EQ(combo("cboCont1").currentText(), "GLOBAL");
    combo("cboCode").setCurrentIndex(0);
    EXPECT_EQ(combo("cboCont1").currentText(), "GLOBAL") << "no code says nothing";
}

TEST_F(FrmProjectionInfo, TheSouthIsALetterInTheRecord) {
    projection = {"UTM", "", "", "18", "N", "", "", "", "", "NAR-C"};
    open();
    pick("cboLSOHEM1", "Southern");
    click("cmdOK");
    EXPECT_EQ(projection.UTMHEM, "S");
}

TEST_F(FrmProjectionInfo, AZoneNeedsItsHemisphere) {
    open();
    typeCode("WGS-84");
    box("txtUTMZone1").setText("18");
    EXPECT_EQ(ok(), "Please provide information for all requested UTM information.");
    pick("cboLSOHEM1", "Northern");
    box("txtUTMZone1").setText("  ");
    EXPECT_EQ(ok(), "Please provide information for all requested UTM information.");
    EXPECT_EQ(projection.PMAP, "UTM") << "taken before its fields are looked at";
    click("cmdCancel");
    EXPECT_EQ(projection.PMAP, "UTM");
    EXPECT_EQ(accepted_, 0);
}

TEST_F(FrmProjectionInfo, MercatorAndAzimuthalPassFromTheRecordAndNotFromTheList) {
    struct Row {
        const char* pmap;
        int entry;
        const char* frame;
    };
    for (const Row& row : {Row{"EM", 5, "EM1"}, Row{"LAZA", 6, "LAZA1"}}) {
        projection = {row.pmap, "1", "2", "", "", "40N", "97W", "33N", "", "WGS-84"};
        open();
        EXPECT_EQ(shownFrame(), row.frame);
        const QString shortForm = combo("cboProj").currentText();
        EXPECT_EQ(combo("cboProj").findText(shortForm), -1) << shortForm.toStdString();
        combo("cboProj").setCurrentIndex(row.entry);
        emit combo("cboProj").activated(combo("cboProj").currentIndex());
        EXPECT_EQ(shownFrame(), row.frame);
        EXPECT_EQ(ok(), "Please choose a projection from the drop-down box.");
        open();
        accepted_ = 0;
        click("cmdOK");
        EXPECT_EQ(accepted_, 1) << row.pmap;
        EXPECT_EQ(projection.PMAP, row.pmap);
        EXPECT_EQ(projection.RLON0, "97W");
    }
}

TEST_F(FrmProjectionInfo, TheDatumIsAskedBeforeLatitudesAreWrapped) {
    projection = {"UTM", "", "", "18", "N", "", "", "", "", ""};
    open();
    box("txtLCCRLAT01").setText("200");
    EXPECT_EQ(ok(), "Please select a DATUM.");
    EXPECT_EQ(box("txtLCCRLAT01").text(), "200");
    typeCode("WGS-84");
    box("txtEMRLAT01").setText("x");
    host_.boxes.clear();
    click("cmdOK");
    EXPECT_TRUE(host_.boxes.empty()) << "a text in the hidden frame of another projection is left alone";
    EXPECT_EQ(box("txtEMRLAT01").text(), "x");
    EXPECT_EQ(accepted_, 1);
    EXPECT_EQ(box("txtLCCRLAT01").text(), "-160");
}

TEST_F(FrmProjectionInfo, AnotherDateStampLeavesTheDialogEmpty) {
    directory_.write("datums.csv", "DATUMS.CSV,V1.0,1999-01-01\nx\nAFRICA,A - B,C,D\n");
    projection = {"LCC", "0", "0", "", "", "40N", "97W", "33N", "45N", "NAS-C"};
    host_.boxAnswers = {BoxAnswer::Ok};
    open();
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].title, "Fatal Error!");
    EXPECT_EQ(host_.boxes[0].text,
              "Date Stamp in BlockData does not match that in the NIMA file.  Fatal Error!");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Warning);
    for (const char* list : {"cboProj", "cboCode", "cboCont1", "cboLCCRLAT01"})
        EXPECT_EQ(combo(list).count(), 0) << list;
    EXPECT_EQ(ok(), "Please choose a projection from the drop-down box.");
    click("cmdCancel");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(accepted_, 0);
}

TEST_F(FrmProjectionInfo, EscapeCancelsAndAMissingTableIsToldOnce) {
    std::filesystem::remove(directory_.file("datums.csv"));
    host_.boxAnswers = {BoxAnswer::Ok};
    open();
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '53':\n\nFile not found\n\ndatums.csv");
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(accepted_, 0);
}

}  // namespace
}  // namespace zg
