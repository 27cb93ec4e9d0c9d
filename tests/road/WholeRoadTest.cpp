// From a raw file to the rose in the main window without stand-ins: the real forms, the real batch file, the
// real processor.

#include "tests/road/RoadFixture.h"

namespace zg {
namespace {

/// Every count and share of the displayed file.
void expectSameRoses(const ModPolarGraph& a, const ModPolarGraph& b) {
    ASSERT_EQ(a.FrqRoseCount, b.FrqRoseCount);
    ASSERT_EQ(a.FrqFraction.rows(), b.FrqFraction.rows());
    for (int row = 0; row < a.FrqFraction.rows(); ++row)
        for (int c = 0; c < 7; ++c)
            EXPECT_EQ(a.FrqFraction(row, c), b.FrqFraction(row, c)) << row << " " << c;
    for (int rose = 1; rose <= a.FrqRoseCount; ++rose) {
        EXPECT_EQ(a.FrqTotalPeriods(rose), b.FrqTotalPeriods(rose)) << rose;
        EXPECT_EQ(a.FrqValidPeriods(rose), b.FrqValidPeriods(rose)) << rose;
        EXPECT_EQ(a.FrqCalmPeriods(rose), b.FrqCalmPeriods(rose)) << rose;
        EXPECT_EQ(a.FrqCalmPercent(rose), b.FrqCalmPercent(rose)) << rose;
        EXPECT_EQ(a.FrqPercentValid(rose), b.FrqPercentValid(rose)) << rose;
    }
}

TEST_F(WholeRoad, AermetSurfaceGivesTheRosesThatAnotherProgramComputed) {
    open<frmOpenAERMETFile>(AermetKind::Surface);
    browse("LOVETT.SFC");
    type("txtAnemometerHeight", "50");
    if (child<QLineEdit>("txtStationID").text().isEmpty()) type("txtStationID", "14735");
    type("txtFRQOutputFilename", "lovett");
    click("cmdView");
    expectRose(FileNameOf(settings.CurrentFrqPath).substr(0, FileNameOf(settings.CurrentFrqPath).size() - 4));
    const ModPolarGraph made = modPolarGraph;
    window_->PlotFrqFile(samples + "LOVETT_1988.frq");
    expectSameRoses(made, modPolarGraph);
}

TEST_F(WholeRoad, AermetProfile) {
    open<frmOpenAERMETFile>(AermetKind::Profile);
    browse("AERMET2.PFL");
    type("txtStationID", "14735");
    type("txtFRQOutputFilename", "profile");
    click("cmdView");
    expectRose(child<QLineEdit>("txtFRQOutputFilename").text().toStdString());
    EXPECT_EQ(modPolarGraph.FrqTotalPeriods(1), 96);
}

TEST_F(WholeRoad, AProfileWithoutSuchALevelIsFinishedWithAWarning) {
    open<frmOpenAERMETFile>(AermetKind::Profile);
    browse("AERMET2.PFL");
    type("txtStationID", "14735");
    type("txtFRQOutputFilename", "profile");
    type("txtAnemometerHeight", "400");
    click("cmdView");
    EXPECT_EQ(status(), "Finished");
    const QLabel& reason = child<QLabel>("lblReason");
    EXPECT_TRUE(reason.isVisible());
    EXPECT_NE(reason.text().toStdString().find("the wind of 400.0 m is that of the nearest level, "),
              std::string::npos)
        << reason.text().toStdString() << listing();
    child("cmdView").setFocus();
    child("cmdExit").setFocus();
    EXPECT_FALSE(reason.isVisible());
}

TEST_F(WholeRoad, SurfStations) {
    open<frmOpenSURFDATFile>();
    browse("valley_surf.dat");
    type("txtFRQOutputFilename", "x");
    click("cmdView");
    expectRose("valley_surf-10012_SURF_20231201-20240201_10m");
    EXPECT_EQ(modPolarGraph.FrqTotalPeriods(1), 24 * 62);
    EXPECT_TRUE(fileExists(out_ + "valley_surf-10011_SURF_20231201-20240201_10m.frq"));
}

TEST_F(WholeRoad, UpperAirHeights) {
    open<frmOpenUPDATFile>();
    browse("valley_up.dat");
    type("txtExtractionHeights", "10,150");
    click("cmdView");
    const std::string last = FileNameOf(settings.CurrentFrqPath);
    ASSERT_TRUE(last.ends_with("_150m.frq")) << listing();
    expectRose(last.substr(0, last.size() - 4));
}

TEST_F(WholeRoad, MonitorStation) {
    open<frmOpenAMMNETDataFile>();
    browse("valley_monitor.csv");
    QComboBox& station = child<QComboBox>("cboStationID");
    station.setCurrentIndex(station.findText(QStringLiteral("ridge")));
    type("txtFRQOutputFilename", "ridge");
    click("cmdView");
    expectRose(child<QLineEdit>("txtFRQOutputFilename").text().toStdString());
    EXPECT_GT(modPolarGraph.FrqPercentValid(1), 95);
}

TEST_F(WholeRoad, TimeSeries) {
    open<frmOpenTSFDataFile>();
    browse("valley_series.tsf");
    type("txtFRQOutputFilename", "series");
    click("cmdView");
    expectRose(child<QLineEdit>("txtFRQOutputFilename").text().toStdString());
    EXPECT_EQ(modPolarGraph.FrqValidPeriods(1), 24 * 62);
}

TEST_F(WholeRoad, ModelGridByCells) {
    open<frmProcess3DDATFiles>(nullptr);
    host_.filesAnswers.push_back({samples + "valley_model.m3d"});
    click("cmdBrowseDataFiles");
    click("cmdNext1");
    child<QComboBox>("cboSpatialInterpolationMethod").setCurrentIndex(0);
    child<QComboBox>("cboVertProfilingMethod").setCurrentIndex(2);
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    type("txtGridPointI", "1.5");
    type("txtGridPointJ", "2.25");
    type("txtFRQOutputFilename", "cell");
    click("cmdNext3");
    type("txtOutputDirectory", out_);
    click("cmdPROCESS");
    expectRose("cell");
    EXPECT_EQ(modPolarGraph.FrqTotalPeriods(1), 24 * 7);
    EXPECT_EQ(modPolarGraph.FrqValidPeriods(1), 24 * 7);
}

TEST_F(WholeRoad, WindFieldByCoordinates) {
    open<frmProcessVENTOSDATFiles>(nullptr);
    host_.filesAnswers.push_back({samples + "valley_ventos.dat"});
    click("cmdBrowseDataFiles");
    click("cmdNext1");
    child<QComboBox>("cboSpatialInterpolationMethod").setCurrentIndex(0);
    type("txtNumberOfLocations", "2");
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    click("cmdNext2");
    for (const char* name : {"first", "second"}) {
        type("txtXCoord", "584.0");
        type("txtYCoord", "4514.5");
        type("txtFRQOutputFilename", name);
        if (std::string(name) == "first") click("cmdNextLocation");
    }
    type("txtExtractionHeight", "80");
    click("cmdNext3");
    type("txtOutputDirectory", out_);
    click("cmdPROCESS");
    expectRose("second");
    EXPECT_EQ(modPolarGraph.FrqValidPeriods(1), 24 * 7);
    EXPECT_TRUE(fileExists(out_ + "first.frq"));
}

TEST_F(WholeRoad, APlaceOutsideTheGridIsNoRose) {
    open<frmProcess3DDATFiles>(nullptr);
    host_.filesAnswers.push_back({samples + "valley_model.m3d"});
    click("cmdBrowseDataFiles");
    click("cmdNext1");
    child<QComboBox>("cboSpatialInterpolationMethod").setCurrentIndex(0);
    child<QComboBox>("cboVertProfilingMethod").setCurrentIndex(2);
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    type("txtGridPointI", "9");
    type("txtGridPointJ", "1");
    type("txtFRQOutputFilename", "far");
    click("cmdNext3");
    type("txtOutputDirectory", out_);
    click("cmdPROCESS");
    EXPECT_EQ(status(), "Error has occurred.");
    EXPECT_FALSE(fileExists(out_ + "far.frq"));
    EXPECT_EQ(listing().find("RUN COMPLETED"), std::string::npos);
}

}  // namespace
}  // namespace zg
