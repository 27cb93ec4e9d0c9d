#pragma once

// Drives the dialogs for point data through their controls.

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "dialogs/point/PointDialog.h"
#include "graph/frq/ModPolarGraph.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "platform/FieldMarks.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/FakeStarter.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TestHost.h"

namespace zg {

inline const std::string surfText =
    "SURF.DAT        2.1             x\r\n0\r\nNONE\r\nUTC-0500\r\n1990 8 6 1815 1990 15 23 0 1\r\n1001\r\n";

inline const std::string surf21 =
    "SURF.DAT        2.1             Hour Start and End Times with Seconds\r\n1\r\nmade for a "
    "test\r\nNONE\r\n"
    "UTC-0500\r\n  1990   8  6 1815  1990  15 23  0   3\r\n  1001\r\n  1002\r\n  1003\r\n";

inline const std::string upText =
    "UP.DAT          2.1             x\r\n0\r\nNONE\r\nUTC+0000\r\n1990 8 0 1800 1990 15 12 0\r\nF\r\n"
    "6201 4417\r\n";

inline const std::string sfcText =
    " 41.3N 74.0W UA_ID: 14735 SF_ID: 14606 OS_ID: L VERSION: 1\n88 1 1 1 1 x\n88 12 31 366 24 x\n\n";

inline const std::string pflText = "88 1 1 1 10.0 0\n88 1 2 5 10.0 0\n";

inline const std::string csvText =
    "DATETIME,DATAAVID,STNCODE\n3/15/2005 1:00:00,60,A1\n3/15/2005 2:00:00,60,A1\n";

inline const std::string seriesText =
    "TIMESERIES.TSF 1.3\n0 - comments\nskipped\nMET\nL: STATION ID = 14735\nUTC-0500\nGREGORIAN_YMD\n"
    "2005 3 7 6 1815 2005 12 31 23 0 3600\n2 - v\nWDIR\nWSPEED\n";

class PointDialogs : public ::testing::Test, protected FormDriver {
 protected:
    void SetUp() override {
        program_.deliver({"TimeZones.txt"});
        startSettings();
        std::filesystem::create_directory(directory_.file("out"));
        starter_.onStart = [this](const std::string& out) {
            std::filesystem::create_directory(directory_.file("seen"));
            for (const std::string& name : namesIn(out))
                if (name.ends_with(".inp"))
                    directory_.write("seen/" + name, readWholeFile(out + pathSeparator + name));
            for (const std::string& name : made_) directory_.write("out/" + name + ".frq", "");
            directory_.write("out/finished.txt", "");
        };
    }
    template <typename Form, typename... More>
    Form& open(More... more) {
        auto form = std::make_unique<Form>(
            host_, starter_,
            ProcessingWindow{[this](const std::string& path) { plotted_.push_back(FileNameOf(path)); },
                             [this] { return ending_; }, [this] { ++seasons_; }, [this] { ++classes_; }},
            more...);
        Form& opened = *form;
        form_ = std::move(form);
        showActive(*form_);
        return opened;
    }
    QWidget& driven() override { return *form_; }
    void browse(const std::string& name, const std::string& text) {
        host_.openAnswers.push_back(directory_.write(name, text));
        click("cmdBrowseFile");
        box("txtOutputDirectory").setText(QString::fromStdString(directory_.file("out/")));
    }
    std::string refusal() {
        host_.boxes.clear();
        host_.boxAnswers = {BoxAnswer::Ok};
        click("cmdView");
        EXPECT_EQ(starter_.starts, 0);
        return host_.boxes.size() == 1 ? host_.boxes[0].text : "boxes: " + std::to_string(host_.boxes.size());
    }
    std::string begin() {
        return (child<QDateEdit>("DTPicker_BeginDate")->date().toString("yyyy-MM-dd ") +
                child<QTimeEdit>("DTPicker_BeginTime")->time().toString("HH:mm:ss"))
            .toStdString();
    }
    std::string end() {
        return (child<QDateEdit>("DTPicker_EndDate")->date().toString("yyyy-MM-dd ") +
                child<QTimeEdit>("DTPicker_EndTime")->time().toString("HH:mm:ss"))
            .toStdString();
    }
    void pickZone(const char* label) {
        auto* zones = child<QComboBox>("cboTimeZone");
        zones->setCurrentIndex(zones->findText(QString::fromLatin1(label)));
        emit zones->activated(zones->currentIndex());
    }
    std::string control(const std::string& base) {
        return directory_.read("seen/" + base + "_tempoline.inp");
    }
    bool marked(const char* name) { return fieldMark(*child(name)) == yellowMark; }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    FakeStarter starter_;
    std::vector<std::string> made_;
    std::vector<std::string> plotted_;
    bool ending_ = false;
    int seasons_ = 0;
    int classes_ = 0;
    std::unique_ptr<QDialog> form_;
};

}  // namespace zg
