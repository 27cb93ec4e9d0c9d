#pragma once

// The real forms, the real batch file, the real processor.

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
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "platform/BatchStarter.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/StartSequence.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {

inline const std::string samples = inSources("data/samples/");

class WholeRoad : public ::testing::Test, protected FormDriver {
 protected:
    /// Lets a test change the program's directory before the program starts in it.
    virtual void prepareProgram() {}

    void SetUp() override {
        applicationDirectory = directory_.file("the program");
        std::filesystem::create_directories(applicationDirectory);
        program_.deliver({"TimeZones.txt", "datums.csv", "Station_Data.csv"});
        std::filesystem::copy(ZG_PROCESSOR, inApplicationDirectory("tempoline.exe"));
        std::filesystem::create_directory(out_);
        prepareProgram();
        startSettings();
        LoadStationData();
        useLibrariesBeside(applicationDirectory);
        window_ = std::make_unique<frmMain>(host_);
        window_->resize(900, 700);
        window_->show();
        empty_ = page();
        // The processor is another process: real time must pass for it too.
        host_.onPump = [] {
            QCoreApplication::processEvents();
            QThread::msleep(1);
        };
    }
    QImage page() { return window_->findChild<QWidget*>(QStringLiteral("picGraph"))->grab().toImage(); }
    ProcessingWindow hooks() {
        return {[this](const std::string& path) { window_->PlotFrqFile(path); },
                [this] { return ending_ || host_.pumps > 300'000; }, [] {}, [] {}};
    }
    template <typename Form, typename... More>
    void open(More... more) {
        form_ = std::make_unique<Form>(host_, starter_, hooks(), more...);
        showActive(*form_);
    }
    QWidget& driven() override { return *form_; }
    void browse(const std::string& file) {
        host_.openAnswers.push_back(file.starts_with(directory_.path()) ? file : samples + file);
        click("cmdBrowseFile");
        fill("txtOutputDirectory", out_);
    }
    /// Fills in the wizard for 3D.DAT, for one rose at a grid cell, up to its last step.
    void openModelGrid(const char* i, const char* j, const char* name) {
        open<frmProcess3DDATFiles>(nullptr);
        host_.filesAnswers.push_back({samples + "valley_model.m3d"});
        click("cmdBrowseDataFiles");
        click("cmdNext1");
        child<QComboBox>("cboSpatialInterpolationMethod")->setCurrentIndex(0);
        child<QComboBox>("cboVertProfilingMethod")->setCurrentIndex(2);
        host_.boxAnswers = {BoxAnswer::Yes};
        click("cmdNext2");
        fill("txtGridPointI", i);
        fill("txtGridPointJ", j);
        fill("txtFRQOutputFilename", name);
        click("cmdNext3");
        fill("txtOutputDirectory", out_);
    }
    std::string listing() {
        for (const auto& entry : std::filesystem::directory_iterator(out_))
            if (entry.path().extension() == ".lst") return readWholeFile(entry.path().string());
        return "no listing";
    }
    /// Whether the last run plotted that file, with all its roses, one of them on display.
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

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    std::string out_ = directory_.file("my results/");
    TestHost host_;
    BatchStarter starter_;
    std::unique_ptr<frmMain> window_;
    std::unique_ptr<QDialog> form_;
    QImage empty_;
    bool ending_ = false;
};

}  // namespace zg
