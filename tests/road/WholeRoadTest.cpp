// From a raw file to the rose in the main window, with nothing in between made up: the real forms, the real
// batch file, the real processor.

#include <gtest/gtest.h>

#include <QApplication>
#include <QRadioButton>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "dialogs/gridded/ClosedLibraries.h"
#include "dialogs/gridded/FrmProjectionInfo.h"
#include "dialogs/gridded/GridForm.h"
#include "dialogs/point/FrmOpenAERMETFile.h"
#include "dialogs/point/FrmOpenAMMNETDataFile.h"
#include "dialogs/point/FrmOpenSURFDATFile.h"
#include "dialogs/point/FrmOpenTSFDataFile.h"
#include "dialogs/point/FrmOpenUPDATFile.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/frq/OpenFreqFile.h"
#include "platform/BatchStarter.h"
#include "processing/Stations.h"
#include "processing/Zones.h"
#include "shell/FrmMain.h"
#include "shell/settings/Settings.h"
#include "shell/settings/StartSequence.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

const std::string samples = ZG_SOURCE_DIR "/data/samples/";

class WholeRoad : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        settings = Settings();
        timeZones = TimeZoneTable();
        stations = StationTable();
        projection = {};
        applicationDirectory = directory_.file("the program");
        std::filesystem::create_directories(applicationDirectory);
        for (const char* name : {"TimeZones.txt", "datums.csv", "Station_Data.csv"})
            std::filesystem::copy(std::string(ZG_SOURCE_DIR "/data/") + name, inApplicationDirectory(name));
        std::filesystem::copy(ZG_PROCESSOR, inApplicationDirectory("tempoline.exe"));
        std::filesystem::create_directory(out_);
        startSettings();
        LoadStationData();
        useLibrariesBeside(applicationDirectory);
        window_ = std::make_unique<frmMain>(host_);
        window_->resize(900, 700);
        window_->show();
        empty_ = page();
        // The processor is another program: time must pass for it too.
        host_.onPump = [] {
            QCoreApplication::processEvents();
            QThread::msleep(1);
        };
    }
    void TearDown() override {
        form_.reset();
        window_.reset();
        projection = {};
    }
    QImage page() { return window_->findChild<QWidget*>(QStringLiteral("picGraph"))->grab().toImage(); }
    ProcessingWindow hooks() {
        return {[this](const std::string& path) { window_->PlotFrqFile(path); },
                [this] { return host_.pumps > 300'000; }, [] {}, [] {}};
    }
    template <typename Form, typename... More>
    void open(More... more) {
        form_ = std::make_unique<Form>(host_, starter_, hooks(), more...);
        form_->show();
        form_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <typename Control = QWidget>
    Control& child(const char* name) {
        return *form_->findChild<Control*>(QString::fromLatin1(name));
    }
    void click(const char* name) { QTest::mouseClick(&child(name), Qt::LeftButton); }
    void type(const char* name, const std::string& text) {
        child<QLineEdit>(name).setText(QString::fromStdString(text));
    }
    void browse(const char* file) {
        host_.openAnswers.push_back(samples + file);
        click("cmdBrowseFile");
        type("txtOutputDirectory", out_);
    }
    std::string listing() {
        for (const auto& entry : std::filesystem::directory_iterator(out_))
            if (entry.path().extension() == ".lst") return readWholeFile(entry.path().string());
        return "no listing";
    }
    std::string status() { return child<QLabel>("lblStatus").text().toStdString(); }
    /// The last run plotted that file, with all its roses, one of them on show.
    void expectRose(const std::string& name) {
        EXPECT_EQ(status(), "Finished") << listing();
        ASSERT_EQ(FileNameOf(settings.CurrentFrqPath), name + ".frq") << listing();
        EXPECT_EQ(window_->windowTitle().toStdString(), "Zephyrgraph - " + name + ".frq");
        EXPECT_EQ(modPolarGraph.FrqVersion, "2.3");
        EXPECT_EQ(modPolarGraph.FrqRoseTitle(1), "All Periods");
        double sum = std::stod(modPolarGraph.FrqCalmPercent(1)) / 100;
        for (int row = 1; row <= 16; ++row)
            for (int c = 1; c <= 6; ++c) sum += modPolarGraph.FrqFraction(row, c);
        EXPECT_NEAR(sum, 1, 1e-3);
        EXPECT_NE(page(), empty_) << "the rose is on the page";
        EXPECT_NE(listing().find("RUN COMPLETED"), std::string::npos);
    }

    TempDirectory directory_;
    std::string out_ = directory_.file("my results/");
    TestHost host_;
    BatchStarter starter_;
    std::unique_ptr<frmMain> window_;
    std::unique_ptr<QDialog> form_;
    QImage empty_;
};

/// Every count and share of the file on show.
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
