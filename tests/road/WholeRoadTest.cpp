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
    open<frmOpenAERMETFile>(InputKind::AermSfc);
    browse("LOVETT.SFC");
    fill("txtAnemometerHeight", "50");
    if (child<QLineEdit>("txtStationID")->text().isEmpty()) fill("txtStationID", "14735");
    fill("txtFRQOutputFilename", "lovett");
    click("cmdView");
    expectRose(FileNameOf(settings.CurrentFrqPath).substr(0, FileNameOf(settings.CurrentFrqPath).size() - 4));
    const ModPolarGraph made = modPolarGraph;
    window_->PlotFrqFile(samples + "LOVETT_1988.frq");
    expectSameRoses(made, modPolarGraph);
}

TEST_F(WholeRoad, AermetProfile) {
    open<frmOpenAERMETFile>(InputKind::AermPfl);
    browse("AERMET2.PFL");
    fill("txtStationID", "14735");
    fill("txtFRQOutputFilename", "profile");
    click("cmdView");
    expectRose(child<QLineEdit>("txtFRQOutputFilename")->text().toStdString());
    EXPECT_EQ(modPolarGraph.FrqTotalPeriods(1), 96);
}

TEST_F(WholeRoad, AProfileWithoutSuchALevelIsFinishedWithAWarning) {
    open<frmOpenAERMETFile>(InputKind::AermPfl);
    browse("AERMET2.PFL");
    fill("txtStationID", "14735");
    fill("txtFRQOutputFilename", "profile");
    fill("txtAnemometerHeight", "400");
    click("cmdView");
    EXPECT_EQ(status(), "Finished");
    const QLabel& reason = *child<QLabel>("lblReason");
    EXPECT_TRUE(reason.isVisible());
    EXPECT_NE(reason.text().toStdString().find("the wind of 400.0 m is that of the nearest level, "),
              std::string::npos)
        << reason.text().toStdString() << listing();
    child("cmdView")->setFocus();
    child("cmdExit")->setFocus();
    EXPECT_FALSE(reason.isVisible());
}

TEST_F(WholeRoad, SurfStations) {
    open<frmOpenSURFDATFile>();
    browse("valley_surf.dat");
    fill("txtFRQOutputFilename", "x");
    click("cmdView");
    expectRose("valley_surf-10012_SURF_20231201-20240201_10m");
    EXPECT_EQ(modPolarGraph.FrqTotalPeriods(1), 24 * 62);
    EXPECT_TRUE(fileExists(out_ + "valley_surf-10011_SURF_20231201-20240201_10m.frq"));
}

TEST_F(WholeRoad, UpperAirHeights) {
    open<frmOpenUPDATFile>();
    browse("valley_up.dat");
    fill("txtExtractionHeights", "10,150");
    click("cmdView");
    const std::string last = FileNameOf(settings.CurrentFrqPath);
    ASSERT_TRUE(last.ends_with("_150m.frq")) << listing();
    expectRose(last.substr(0, last.size() - 4));
}

TEST_F(WholeRoad, MonitorStation) {
    open<frmOpenAMMNETDataFile>();
    browse("valley_monitor.csv");
    QComboBox& station = *child<QComboBox>("cboStationID");
    station.setCurrentIndex(station.findText(QStringLiteral("ridge")));
    fill("txtFRQOutputFilename", "ridge");
    click("cmdView");
    expectRose(child<QLineEdit>("txtFRQOutputFilename")->text().toStdString());
    EXPECT_GT(modPolarGraph.FrqPercentValid(1), 95);
}

TEST_F(WholeRoad, TimeSeries) {
    open<frmOpenTSFDataFile>();
    browse("valley_series.tsf");
    fill("txtFRQOutputFilename", "series");
    click("cmdView");
    expectRose(child<QLineEdit>("txtFRQOutputFilename")->text().toStdString());
    EXPECT_EQ(modPolarGraph.FrqValidPeriods(1), 24 * 62);
}

TEST_F(WholeRoad, ModelGridByCells) {
    openModelGrid("1.5", "2.25", "cell");
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
    child<QComboBox>("cboSpatialInterpolationMethod")->setCurrentIndex(0);
    fill("txtNumberOfLocations", "2");
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        QTest::mouseClick(dialog->findChild<QWidget*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    click("cmdNext2");
    for (const char* name : {"first", "second"}) {
        fill("txtXCoord", "584.0");
        fill("txtYCoord", "4514.5");
        fill("txtFRQOutputFilename", name);
        if (std::string(name) == "first") click("cmdNextLocation");
    }
    fill("txtExtractionHeight", "80");
    click("cmdNext3");
    fill("txtOutputDirectory", out_);
    click("cmdPROCESS");
    expectRose("second");
    EXPECT_EQ(modPolarGraph.FrqValidPeriods(1), 24 * 7);
    EXPECT_TRUE(fileExists(out_ + "first.frq"));
}

TEST_F(WholeRoad, APlaceOutsideTheGridIsNoRose) {
    openModelGrid("9", "1", "far");
    click("cmdPROCESS");
    EXPECT_EQ(status(), "Error has occurred.");
    EXPECT_FALSE(fileExists(out_ + "far.frq"));
    EXPECT_EQ(listing().find("RUN COMPLETED"), std::string::npos);
}

}  // namespace
}  // namespace zg
