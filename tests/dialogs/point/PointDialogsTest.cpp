// The dialogs for UP.DAT, monitor, AERMET and time-series files, through their controls.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>

#include "base/RunTimeError.h"
#include "dialogs/point/FrmOpenAERMETFile.h"
#include "dialogs/point/FrmOpenAMMNETDataFile.h"
#include "dialogs/point/FrmOpenTSFDataFile.h"
#include "dialogs/point/FrmOpenUPDATFile.h"
#include "platform/Captions.h"
#include "tests/dialogs/point/PointDialogs.h"

namespace zg {
namespace {

TEST_F(PointDialogs, UpShowsItsPeriodInItsOwnZone) {
    open<frmOpenUPDATFile>();
    EXPECT_EQ(form_->windowTitle(), "Generate Wind Rose Plots from an UP.DAT File:");
    EXPECT_EQ(box("txtExtractionHeights").text(), "10");
    browse("u.dat", upText);
    EXPECT_EQ(host_.openPicks[0].filter, "UP.DAT Data Files (*.dat) | *.dat|All Files (*.*) | *.*; |");
    // First shown in Eastern Time, 5 hours behind UTC; then the file's own zone moves it, but never before
    // the file's begin.
    EXPECT_EQ(begin(), "1990-01-08 00:30:00");
    EXPECT_EQ(end(), "1990-01-15 12:00:00");
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(),
              "(UTC+00:00) Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London");
    EXPECT_EQ(box("txtStationID").text(), "4417");
}

TEST_F(PointDialogs, AnotherZoneMovesTheHoursOfUpAndKeepsItsMinutes) {
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    pickZone("(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(begin(), "1990-01-07 19:30:00");
    EXPECT_EQ(end(), "1990-01-15 07:00:00");
    pickZone("(UTC+03:00) Nairobi");
    EXPECT_EQ(begin(), "1990-01-08 03:30:00");
    EXPECT_EQ(end(), "1990-01-15 15:00:00");
}

TEST_F(PointDialogs, AnUpPeriodNeverBeginsBeforeTheFile) {
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    child<QDateEdit>("DTPicker_BeginDate")->setDate(QDate(1980, 1, 1));
    child<QDateEdit>("DTPicker_EndDate")->setDate(QDate(1985, 1, 1));
    pickZone("(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(begin(), "1990-01-07 19:30:00");
    EXPECT_EQ(end(), "1990-01-07 19:00:00") << "both are kept from falling before it";
}

TEST_F(PointDialogs, UpChecksItsDatesFirst) {
    open<frmOpenUPDATFile>();
    child<QDateEdit>("DTPicker_BeginDate")->setDate(QDate(2005, 1, 2));
    child<QDateEdit>("DTPicker_EndDate")->setDate(QDate(2005, 1, 1));
    EXPECT_EQ(refusal(), "Error: The Starting Date is later than the Ending Date.");
    child<QDateEdit>("DTPicker_EndDate")->setDate(QDate(2005, 1, 3));
    EXPECT_EQ(refusal(), "Please select an UP.DAT file.");
    box("txtUPDATFile").setText("/nowhere.dat");
    EXPECT_EQ(refusal(), "The selected UP.DAT file does not exist.");
    browse("u.dat", upText);
    box("txtExtractionHeights").clear();
    EXPECT_EQ(refusal(), "Please enter one or more extraction heights in meters separated by commas.");
    box("txtExtractionHeights").setText("10");
    box("txtOutputDirectory").clear();
    EXPECT_EQ(refusal(), "Please select a Directory For Output.");
    box("txtOutputDirectory").setText("/nowhere/at/all");
    EXPECT_EQ(refusal(), "Selected Directory For Output does not exist.");
}

TEST_F(PointDialogs, UpMakesARoseAHeightAndLosesTheLastForAnEmptyItem) {
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    box("txtExtractionHeights").setText("10, 50,,100");
    made_ = {"u_UP_19900108-19900115_10m", "u_UP_19900108-19900115_ 50m"};
    click("cmdView");
    const std::string text = control("u_UP_19900108-19900115");
    EXPECT_NE(text.find("! NTSFOUT = 3 !"), std::string::npos);
    EXPECT_NE(text.find("! TSFOUT = u_UP_19900108-19900115_ 50m !"), std::string::npos)
        << "its blank is kept";
    EXPECT_NE(text.find("! MET = 4417, 0, 0, , -1., -1., -1. !"), std::string::npos);
    EXPECT_EQ(text.find("_100m"), std::string::npos);
    EXPECT_EQ(plotted_, (std::vector<std::string>{made_[0] + ".frq", made_[1] + ".frq"}));
    EXPECT_EQ(box("txtFRQOutputFilename").text(), "u_UP_19900108-19900115");
    EXPECT_EQ(status(), "Error has occurred.") << "the last result";
}

TEST_F(PointDialogs, TheScreensPointerIsAnHourglassDuringARunAndNormalAfterAnyEnd) {
    const auto hourglass = [] {
        const QCursor* pointer = QGuiApplication::overrideCursor();
        return pointer != nullptr && pointer->shape() == Qt::WaitCursor;
    };
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    int seen = 0;
    starter_.onStart = [&](const std::string&) {
        seen += hourglass() ? 1 : 0;
        // A second start during the wait of the first ends before it.
        if (starter_.starts == 1) click("cmdView");
        if (starter_.starts == 2) directory_.write("out/finished.txt", "");
    };
    click("cmdView");
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    starter_.onStart = [](const std::string&) { raise(ErrorNumber::PermissionDenied); };
    host_.boxAnswers = {BoxAnswer::Cancel};
    click("cmdView");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(status(), "");
}

TEST_F(PointDialogs, UpRefusesOtherFiles) {
    open<frmOpenUPDATFile>();
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("x.dat", "SURF.DAT 2.1\n");
    EXPECT_EQ(host_.boxes[0].text, "The selected file is not a valid UP.DAT file.");
    EXPECT_TRUE(marked("txtUPDATFile"));
    pickZone("(UTC+03:00) Nairobi");
    EXPECT_EQ(child<QDateEdit>("DTPicker_BeginDate")->date(), QDate::currentDate()) << "nothing was read";
}

TEST_F(PointDialogs, MonitorListsStationsAndTheirPlaces) {
    stations.gsStationCol0 = {"Albany", "Beacon", ""};
    stations.gsStationCol1 = {"A1", "b2", ""};
    stations.gsStationCol2 = {"600.5", "1", ""};
    stations.gsStationCol3 = {"4700.25", "2", ""};
    open<frmOpenAMMNETDataFile>();
    EXPECT_EQ(form_->windowTitle(), "  Generate Wind Rose Plots from Monitor Meteorological Data");
    EXPECT_EQ(spoken(child<QGroupBox>("frameFile")->title()), "Monitor Meteorological Data File:");
    browse("m.csv", "DATETIME,DATAAVID,STNCODE\n3/15/2005 1:00:00,60,A1\n3/15/2005 2:00:00,60,B2\n");
    EXPECT_EQ(host_.openPicks[0].filter, "AMMNET Met Data Files (*.csv) | *.csv|All Files (*.*) | *.*; |");
    EXPECT_EQ(begin(), "2005-03-15 00:00:00");
    EXPECT_EQ(end(), "2005-03-15 02:00:00");
    EXPECT_EQ(child<QTimeEdit>("DTPicker_TimeStep")->time(), QTime(1, 0));
    auto* list = child<QComboBox>("cboStationID");
    EXPECT_EQ(list->count(), 2);
    EXPECT_EQ(list->currentText(), "A1");
    EXPECT_EQ(box("txtXLoc").text(), "600.5");
    EXPECT_EQ(box("txtYLoc").text(), "4700.25");
    list->setCurrentIndex(1);
    emit list->activated(1);
    EXPECT_EQ(box("txtXLoc").text(), "600.5") << "letter case counts here";
    made_ = {"Beacon_AMMNETW_20050315-20050315_2.5m"};
    box("txtAnemometerHeight").clear();
    QTest::keyClicks(&box("txtAnemometerHeight"), "2.5x");
    click("cmdView");
    EXPECT_EQ(plotted_, std::vector<std::string>{made_[0] + ".frq"}) << "but not in the name";
    EXPECT_EQ(status(), "Finished");
    const std::string text = control(made_[0]);
    EXPECT_NE(text.find("! MDATA = MONITORW !"), std::string::npos);
    EXPECT_NE(text.find("! MET = B2, 0, 0, 2.5, -1., -1., -1. !"), std::string::npos);
    EXPECT_NE(text.find("     * LOCMET = *\r\n"), std::string::npos);
}

TEST_F(PointDialogs, MonitorRefusesOtherFilesAndChecksItsStep) {
    open<frmOpenAMMNETDataFile>();
    EXPECT_EQ(refusal(), "Please select an AMMNET Met Data file.");
    box("txtAMMNETDataFile").setText("/no.csv");
    EXPECT_EQ(refusal(), "The selected AMMNET Met Data file does not exist.");
    host_.boxes.clear();
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("x.csv", "a,b,c\n1,2,3\n");
    EXPECT_EQ(host_.boxes[0].text, "The selected air quality data file is not in the expected format.");
    EXPECT_TRUE(marked("txtAMMNETDataFile"));
    browse("m.csv", "DATETIME,DATAAVID,STNCODE\n3/15/2005 1:00:00,60,\n3/15/2005 2:00:00,60,\n");
    child<QTimeEdit>("DTPicker_TimeStep")->setTime(QTime(0, 0));
    EXPECT_EQ(refusal(), "Please enter a valid time step.");
    child<QTimeEdit>("DTPicker_TimeStep")->setTime(QTime(1, 0));
    click("cmdView");
    EXPECT_EQ(box("txtXLoc").text(), "0");
    EXPECT_EQ(box("txtYLoc").text(), "0");
    EXPECT_EQ(status(), "Error has occurred.");
    EXPECT_EQ(box("txtFRQOutputFilename").text(), "m_AMMNETW_20050315-20050315_10m");
}

TEST_F(PointDialogs, AermetSurfaceAndProfileAreOneForm) {
    open<frmOpenAERMETFile>(InputKind::AermSfc);
    EXPECT_EQ(form_->objectName(), "frmOpenAERMETSFCFile");
    EXPECT_EQ(form_->windowTitle(), "Generate Wind Rose Plots from AERMET Surface Data");
    EXPECT_EQ(spoken(child<QGroupBox>("frameFile")->title()), "AERMET Surface Data File:");
    browse("a.sfc", sfcText);
    EXPECT_EQ(host_.openPicks[0].filter, "AERMET Data Files (*.sfc) | *.sfc|All Files (*.*) | *.*; |");
    EXPECT_EQ(begin(), "1988-01-01 00:00:00");
    EXPECT_EQ(end(), "1989-01-01 00:00:00");
    EXPECT_EQ(box("txtStationID").text(), "14606");
    made_ = {"a_AERMETSFC_19880101-19890101_10m"};
    click("cmdView");
    EXPECT_EQ(plotted_.size(), 1U);
    EXPECT_NE(control(made_[0]).find("! MDATA = AERMSFC !"), std::string::npos);
    open<frmOpenAERMETFile>(InputKind::AermPfl);
    EXPECT_EQ(form_->objectName(), "frmOpenAERMETPFLFile");
    EXPECT_EQ(spoken(child<QGroupBox>("frameFile")->title()), "AERMET Profile Data File:");
    browse("a.pfl", "88 1 1 1 10.0 0\n88 1 2 5 10.0 0\n");
    EXPECT_EQ(host_.openPicks[1].filter,
              "AERMET Profile Data Files (*.pfl) | *.pfl|All Files (*.*) | *.*; |");
    EXPECT_EQ(box("txtStationID").text(), "");
    std::filesystem::remove_all(directory_.file("seen"));
    click("cmdView");
    EXPECT_EQ(box("txtStationID").text(), "0");
    EXPECT_NE(control("a_AERMETPFL_19880101-19880102_10m").find("! MET = 0, 0, 0, 10,"), std::string::npos);
}

TEST_F(PointDialogs, AermetWantsBothOrNeitherOfThePlace) {
    open<frmOpenAERMETFile>(InputKind::AermSfc);
    EXPECT_EQ(refusal(), "Please select an AERMET Met Data file.");
    browse("a.sfc", sfcText);
    child<QTimeEdit>("DTPicker_TimeStep")->setTime(QTime(0, 0));
    box("txtXLoc").setText("5");
    EXPECT_EQ(refusal(), "Please enter a Y location.") << "the step is not looked at";
    EXPECT_TRUE(marked("txtYLoc"));
    box("txtXLoc").clear();
    box("txtYLoc").setText("5");
    EXPECT_EQ(refusal(), "Please enter an X location.");
    box("txtYLoc").clear();
    click("cmdView");
    EXPECT_EQ(box("txtXLoc").text(), "0");
    EXPECT_EQ(starter_.starts, 1);
}

TEST_F(PointDialogs, AWrongAermetFileIsARunTimeError) {
    open<frmOpenAERMETFile>(InputKind::AermSfc);
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("x.sfc", "a b c d e f\ng h i j k\n");
    EXPECT_EQ(host_.boxes[0].text,
              "Run-time error '13':\n\nType mismatch\n\n"
              "x.sfc, line 2 (first hour): date does not exist");
    EXPECT_EQ(host_.boxes[0].title, "Zephyrgraph");
}

TEST_F(PointDialogs, ATimeSeriesNamesItsRoseInTheControlFile) {
    stations.gsStationCol0 = {"Albany", ""};
    stations.gsStationCol1 = {"14735", ""};
    open<frmOpenTSFDataFile>();
    EXPECT_EQ(form_->windowTitle(), "Generate Wind Rose Plots from Time Series File (TSF)");
    browse("t.tsf", seriesText);
    EXPECT_EQ(begin(), "2005-03-07 06:30:15");
    EXPECT_EQ(end(), "2005-12-31 23:00:00");
    EXPECT_EQ(child<QTimeEdit>("DTPicker_TimeStep")->time(), QTime(1, 0));
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(), "(UTC-05:00) Indiana (East)");
    EXPECT_EQ(box("txtStationID").text(), "14735");
    EXPECT_EQ(box("txtStationID").toolTip(),
              "The result is named by the station in the file, whatever is typed here");
    box("txtStationID").setText("another");
    made_ = {"Albany_TSFMET_20050307-20051231"};
    click("cmdView");
    EXPECT_EQ(plotted_.size(), 1U);
    const std::string text = control(made_[0]);
    EXPECT_NE(text.find("! ROSEPLT = Albany_TSFMET_20050307-20051231 !"), std::string::npos);
    EXPECT_NE(text.find("! NTSFOUT = 0 !"), std::string::npos);
    EXPECT_NE(text.find("! METINP = " + directory_.file("t.tsf") + " !"), std::string::npos);
}

TEST_F(PointDialogs, ATimeSeriesIsRefusedLoudlyOrSilently) {
    open<frmOpenTSFDataFile>();
    host_.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    browse("x.tsf", "no\n");
    EXPECT_EQ(host_.boxes[0].text, "The selected file is not a valid Time Series File (*.TSF).");
    std::string text = seriesText;
    browse("w.tsf", text.replace(text.find("WSPEED"), 6, "TEMP"));
    EXPECT_EQ(host_.boxes[1].text,
              "The selected file is not a valid meteorological Time Series File (*.TSF).");
    text = seriesText;
    const std::string before = begin();
    browse("v.tsf", text.replace(text.find("1.3"), 3, "1.2"));
    EXPECT_EQ(begin(), before);
    EXPECT_EQ(host_.boxes.size(), 2U);
}

TEST_F(PointDialogs, ATimeSeriesOfAnUnknownZoneShowsTheFirstAndADayStepWraps) {
    open<frmOpenTSFDataFile>();
    std::string text = seriesText;
    text.replace(text.find("UTC-0500"), 8, "UTC+1345");
    browse("t.tsf", text.replace(text.find("3600"), 4, "86400"));
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentIndex(), 0);
    EXPECT_EQ(child<QTimeEdit>("DTPicker_TimeStep")->time(), QTime(0, 0));
    click("cmdView");
    EXPECT_EQ(starter_.starts, 1) << "the step is not looked at";
    EXPECT_EQ(box("txtFRQOutputFilename").text(), "t_TSFMET_20050307-20051231") << "no height in the name";
}

TEST_F(PointDialogs, ALargeFileIsReadWithTheWindowAlive) {
    open<frmOpenAERMETFile>(InputKind::AermPfl);
    std::string text = "88 1 1 1 10.0 0\n";
    while (text.size() < 18'000'000) text += "88 1 1 2 10.0 0 and so on, a line like any other of the file\n";
    std::vector<std::string> seen;
    host_.onPump = [&] {
        host_.now += 600;
        seen.push_back(status() + (form_->isEnabled() ? "|on" : "|off"));
    };
    browse("large.pfl", text);
    EXPECT_EQ(seen, (std::vector<std::string>{"|on", "|on", "Reading...|off", "Reading...|off"}));
    EXPECT_EQ(status(), "");
    EXPECT_TRUE(form_->isEnabled());
}

}  // namespace
}  // namespace zg
