#pragma once

// Drives both wizards through their controls.

#include "dialogs/gridded/GridForm.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "dialogs/gridded/FrmProjectionInfo.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/frq/OpenFreqFile.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "platform/FieldMarks.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/headers/GridFiles.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {

/// A stand-in for the processor: copies a rose to every output that the control file names.
class CopyingProcessor : public ProcessStarter {
 public:
    void start(const std::string& program, WindowStyle) override {
        directory_ = program.substr(0, program.find_last_of("/\\") + 1);
        if (!isSlow) finish();
    }
    void finish() {
        for (const std::string& name : namesIn(directory_))
            if (name.ends_with(".inp")) readOutputs(directory_ + name, directory_);
        LineWriter(directory_ + "finished.txt").writeLine("x");
    }

    bool isSlow = false;  ///< it ends only when told to

 private:
    static void readOutputs(const std::string& path, const std::string& directory) {
        const std::string key = "! TSFOUT = ";
        for (LineReader lines(path); !lines.atEnd();) {
            const std::string line(lines.readLine());
            const std::size_t at = line.find(key);
            if (at == std::string::npos) continue;
            const std::string name = line.substr(at + key.size(), line.find(" !", at + 2) - at - key.size());
            LineWriter(directory + name + ".frq")
                .write(readWholeFile(inSources("data/samples/LOVETT_1988.frq")));
        }
    }

    std::string directory_;
};

class GridFormTest : public ::testing::Test, protected FormDriver {
 protected:
    void SetUp() override {
        program_.deliver({"TimeZones.txt", "datums.csv"});
        directory_.write("Station_Data.csv",
                         "STATION_DATA.CSV,V1.0\nheads\nBoston,1,0,0,a,b,c,42.36,-71.01,NAR-B\n"
                         "Albany,2,0,0,a,b,c,42.75,-73.8,WGS-84\n");
        startSettings();
        LoadStationData();
        std::filesystem::create_directory(directory_.file("out"));
    }
    void open(const GridVariation& variation) {
        form_ = std::make_unique<GridForm>(
            variation, host_, starter_,
            ProcessingWindow{[this](const std::string& path) {
                                 settings.CurrentFrqPath = path;
                                 loadFreqFile(path, modPolarGraph, host_);
                                 if (onPlot_) onPlot_();
                             },
                             [] { return false; }, [this] { ++seasons_; }, [this] { ++classes_; }},
            nullptr);
        showActive(*form_);
    }
    QWidget& driven() override { return *form_; }
    QComboBox& combo(const char* name) { return *child<QComboBox>(name); }
    QListWidget& list(const char* name) { return *child<QListWidget>(name); }
    std::string caption() { return child<QGroupBox>("Frame_Step3")->title().toStdString(); }
    void click(const char* name) {
        ASSERT_TRUE(child(name)->isEnabled()) << name;
        QTest::mouseClick(child(name), Qt::LeftButton);
    }
    void type(const char* name, const char* text) {
        box(name).setFocus();
        box(name).clear();
        QTest::keyClicks(&box(name), QString::fromLatin1(text));
    }
    void browse(const std::vector<std::string>& paths) {
        host_.filesAnswers.push_back(paths);
        click("cmdBrowseDataFiles");
    }
    void pickMethods() {
        combo("cboSpatialInterpolationMethod").setCurrentIndex(0);
        if (auto* profiling = child<QComboBox>("cboVertProfilingMethod")) profiling->setCurrentIndex(2);
        box("txtOutputDirectory").setText(QString::fromStdString(directory_.file("out/")));
    }
    /// Clicks NEXT in step 2 and, once the projection dialog is open, its OK or Cancel.
    void nextThroughProjection(const char* button) {
        bool seen = false;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<frmProjectionInfo*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            seen = true;
            if (dialog->findChild<QComboBox*>("cboCode")->currentText().isEmpty())
                dialog->findChild<QComboBox*>("cboCode")->setEditText("WGS-84");
            QTest::mouseClick(dialog->findChild<QWidget*>(QString::fromLatin1(button)), Qt::LeftButton);
        });
        click("cmdNext2");
        EXPECT_TRUE(seen);
    }
    int roses() { return modPolarGraph.FrqLoaded ? modPolarGraph.FrqRoseCount : 0; }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    CopyingProcessor starter_;
    std::unique_ptr<GridForm> form_;
    std::function<void()> onPlot_;
    int seasons_ = 0;
    int classes_ = 0;
};

}  // namespace zg
