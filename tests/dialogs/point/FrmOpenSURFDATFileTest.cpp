#include "dialogs/point/FrmOpenSURFDATFile.h"

#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>
#include <filesystem>

#include "base/Paths.h"
#include "base/Text.h"
#include "headers/Stations.h"
#include "settings/Settings.h"
#include "tests/dialogs/point/PointDialogs.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

class FrmOpenSURFDATFile : public PointDialogs {
 protected:
    void SetUp() override {
        PointDialogs::SetUp();
        starter_.onStart = nullptr;
        input_ = directory_.write("my data.dat", surf21);
        open<frmOpenSURFDATFile>();
    }
    void browse() {
        host_.openAnswers.push_back(input_);
        click("cmdBrowseFile");
        box("txtFRQOutputFilename").setText("x");
        box("txtOutputDirectory").setText(QString::fromStdString(directory_.file("out/")));
    }
    /// Presses RUN and returns the text of the one box that it shows.
    std::string refusal() {
        const std::string text = PointDialogs::refusal();
        EXPECT_TRUE(host_.boxes.size() != 1 || host_.boxes[0].title == "Error");
        return text;
    }

    std::string input_;
};

TEST_F(FrmOpenSURFDATFile, OpensWithItsDefaults) {
    EXPECT_EQ(form_->windowTitle(), "Generate Wind Rose Plots from a SURF.DAT File:");
    EXPECT_EQ(child<QDateEdit>("DTPicker_BeginDate")->date(), QDate::currentDate());
    EXPECT_EQ(child<QTimeEdit>("DTPicker_TimeStep")->time(), QTime(1, 0));
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(), "(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->count(), 63);
    EXPECT_EQ(box("txtAnemometerHeight").text(), "10");
    EXPECT_EQ(box("txtFRQOutputFilename").toolTip(),
              "Must not be empty, but each result gets a name built of station, height and period");
    EXPECT_EQ(child<QPushButton>("cmdExit")->text(), "Cancel");
    EXPECT_EQ(child<QPushButton>("cmdView")->text(), "RUN");
}

TEST_F(FrmOpenSURFDATFile, BrowsingReadsTheHeaderAndSelectsAllStations) {
    host_.openAnswers = {""};
    click("cmdBrowseFile");
    EXPECT_EQ(box("txtSURFDATFile").text(), "");
    browse();
    EXPECT_EQ(host_.openPicks[0].filter, "SURF.DAT Files (*.dat) | *.dat; |All Files (*.*) | *.*");
    EXPECT_EQ(box("txtSURFDATFile").text().toStdString(), input_);
    EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->count(), 3);
    EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->selectedItems().size(), 3);
    EXPECT_EQ(child<QDateEdit>("DTPicker_BeginDate")->date(), QDate(1990, 1, 8));
    EXPECT_EQ(child<QTimeEdit>("DTPicker_BeginTime")->time(), QTime(6, 30, 15));
    EXPECT_EQ(child<QDateEdit>("DTPicker_EndDate")->date(), QDate(1990, 1, 15));
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(), "(UTC-05:00) Indiana (East)")
        << "of several rows with one key the last";
    click("cmdDeselectAll");
    EXPECT_TRUE(child<QListWidget>("lstSURFDATStationIDs")->selectedItems().isEmpty());
    click("cmdSelectAll");
    EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->selectedItems().size(), 3);
}

TEST_F(FrmOpenSURFDATFile, AnUnknownZoneLeavesTheListAndAnotherKindIsTold) {
    std::string text = surf21;
    text.replace(text.find("UTC-0500"), 8, "UTC+1400");
    input_ = directory_.write("zone.dat", text);
    browse();
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(), "(UTC-05:00) Eastern Time (US & Canada)");
    input_ = directory_.write("bad.dat", "UP.DAT\r\n");
    host_.boxAnswers = {BoxAnswer::Ok};
    browse();
    EXPECT_EQ(host_.boxes[0].text, "The selected file is not a valid SURF.DAT file.");
    EXPECT_EQ(host_.boxes[0].title, "Error");
    EXPECT_TRUE(marked("txtSURFDATFile"));
    input_ = directory_.write("wrong.dat", "SURF.DAT        9.9\r\n");
    browse();
    EXPECT_FALSE(marked("txtSURFDATFile")) << "a wrong version is silent";
    EXPECT_EQ(host_.boxes.size(), 1U);
}

TEST_F(FrmOpenSURFDATFile, ADayOutOfItsYearShowsTwoBoxes) {
    std::string text = surf21;
    text.replace(text.find("1990   8"), 8, "1990 367");
    input_ = directory_.write("day.dat", text);
    host_.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    browse();
    ASSERT_EQ(host_.boxes.size(), 2U);
    EXPECT_EQ(host_.boxes[0].text, "Error in VBGRDAY: invalid date.");
    EXPECT_EQ(host_.boxes[0].title, "");
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::Ok);
    const std::string& error = host_.boxes[1].text;
    EXPECT_TRUE(error.starts_with("Run-time error '13':\n\nType mismatch\n\nday.dat, line ")) << error;
    EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->count(), 3)
        << "what was read before the fault stays";
}

TEST_F(FrmOpenSURFDATFile, ChecksInOrder) {
    EXPECT_EQ(refusal(), "Please select a SURF.DAT file.");
    EXPECT_TRUE(marked("txtSURFDATFile"));
    browse();
    box("txtSURFDATFile").setText("/nowhere.dat");
    EXPECT_EQ(refusal(), "The selected SURF.DAT file does not exist.");
    box("txtSURFDATFile").setText(QString::fromStdString(input_));
    auto* beginDate = child<QDateEdit>("DTPicker_BeginDate");
    beginDate->setDate(QDate(1990, 1, 16));
    EXPECT_EQ(refusal(), "Error: The Starting Date is later than the Ending Date.");
    EXPECT_TRUE(marked("framePeriod"));
    beginDate->setDate(QDate(1990, 1, 15));
    child<QTimeEdit>("DTPicker_BeginTime")->setTime(QTime(23, 0));
    EXPECT_EQ(refusal(), "Error: The Ending Date/Time must be later than the Starting Date/Time.");
    child<QTimeEdit>("DTPicker_BeginTime")->setTime(QTime(22, 59, 59));
    child<QComboBox>("cboTimeZone")->setCurrentIndex(-1);
    EXPECT_EQ(refusal(), "Please select a Base Time Zone from the pull-down menu.");
    EXPECT_FALSE(marked("framePeriod"));
    child<QComboBox>("cboTimeZone")->setCurrentIndex(3);
    child<QTimeEdit>("DTPicker_TimeStep")->setTime(QTime(0, 0));
    EXPECT_EQ(refusal(), "Please enter a valid time step.");
    child<QTimeEdit>("DTPicker_TimeStep")->setTime(QTime(0, 30));
    box("txtAnemometerHeight").clear();
    EXPECT_EQ(refusal(), "Please enter a valid Anemometer Height in meters.");
    box("txtAnemometerHeight").setText("10");
    click("cmdDeselectAll");
    EXPECT_EQ(refusal(), "Please select at least one station.");
    click("cmdSelectAll");
    box("txtOutputDirectory").clear();
    EXPECT_EQ(refusal(), "Please select an Output Directory.");
    box("txtOutputDirectory").setText("/nowhere/at/all");
    EXPECT_EQ(refusal(), "Selected Output Directory does not exist.");
    box("txtOutputDirectory").setText(QString::fromStdString(directory_.file("out")));
    box("txtFRQOutputFilename").clear();
    EXPECT_EQ(refusal(), "Please enter an output filename.");
    EXPECT_TRUE(marked("txtFRQOutputFilename"));
}

TEST_F(FrmOpenSURFDATFile, TwoOfThreeStationsAreMadeAndTheLastIsShown) {
    stations.gsStationCol0 = {"Albany", "", ""};
    stations.gsStationCol1 = {" 1002 ", "", ""};
    browse();
    box("txtTitleLine").setText(" Winds ");
    std::vector<std::string> texts;
    std::string names[3] = {"my data-1001_SURF_19900108-19900115_10m", "Albany_SURF_19900108-19900115_10m",
                            "my data-1003_SURF_19900108-19900115_10m"};
    starter_.onStart = [&](const std::string&) {
        EXPECT_EQ(box("txtFRQOutputFilename").text().toStdString(), names[0]);
        const std::string control = directory_.read("out/my data_SURF_19900108-19900115_tempoline.inp");
        EXPECT_NE(control.find("\r\nWinds\r\n"), std::string::npos);
        EXPECT_NE(control.find("! NTSFOUT = 3 !"), std::string::npos);
        EXPECT_NE(control.find("! METINP = " + input_ + " !"), std::string::npos);
        EXPECT_NE(control.find("! LOCMET = WindsAlbany !"), std::string::npos);
        EXPECT_NE(control.find("! MET = 1003, 0, 0, 10, -1., -1., -1. !"), std::string::npos);
        EXPECT_NE(control.find("! IBMO  = 1 !"), std::string::npos);
        EXPECT_NE(control.find("! IBSEC = 1815 !"), std::string::npos);
        directory_.write("out/" + names[1] + ".FRQ", "");
        directory_.write("out/" + names[2] + ".frq", "");
        directory_.write("out/finished.txt", "");
    };
    host_.onPump = [&] {
        if (texts.empty() || texts.back() != status()) texts.push_back(status());
    };
    click("cmdView");
    EXPECT_EQ(plotted_, (std::vector<std::string>{names[1] + ".FRQ", names[2] + ".frq"}));
    EXPECT_EQ(box("txtFRQOutputFilename").text().toStdString(), names[2]);
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(texts, (std::vector<std::string>{"Running.  ", "Running.. ", "Running...", "Running.  ",
                                               "Running.. ", "Running..."}));
    EXPECT_EQ(child<QPushButton>("cmdExit")->text(), "Exit");
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC-05:00) Indiana (East)");
    EXPECT_NE(directory_.read("Zephyrgraph.cfg").find("Indiana"), std::string::npos);
}

TEST_F(FrmOpenSURFDATFile, AFirstRowLeftOutEmptiesTheNameAtTheStart) {
    browse();
    child<QListWidget>("lstSURFDATStationIDs")->item(0)->setSelected(false);
    starter_.onStart = [this](const std::string&) {
        EXPECT_EQ(box("txtFRQOutputFilename").text(), "");
        const std::string control = directory_.read("out/my data_SURF_19900108-19900115_tempoline.inp");
        EXPECT_NE(control.find("! TSFID  = 2 !"), std::string::npos);
        EXPECT_EQ(control.find("! TSFID  = 1 !"), std::string::npos);
        directory_.write("out/finished.txt", "");
    };
    click("cmdView");
    EXPECT_TRUE(plotted_.empty());
    EXPECT_EQ(status(), "Finished") << "even if every output failed";
}

TEST_F(FrmOpenSURFDATFile, RowsTwoAndFiveOfFiveKeepTheirNumbersInTheControlFile) {
    std::string text = surf21;
    text.replace(text.find("  3\r\n"), 5, "  5\r\n");
    input_ = directory_.write("five.dat", text + "  1004\r\n  1005\r\n");
    browse();
    for (const int row : {0, 2, 3}) child<QListWidget>("lstSURFDATStationIDs")->item(row)->setSelected(false);
    starter_.onStart = [this](const std::string&) { directory_.write("out/finished.txt", ""); };
    click("cmdView");
    const std::string control = directory_.read("out/five_SURF_19900108-19900115_tempoline.inp");
    EXPECT_NE(control.find("! NTSFOUT = 2 !"), std::string::npos);
    const auto times = [&control](const std::string& part) {
        int count = 0;
        for (std::size_t at = control.find(part); at != std::string::npos; at = control.find(part, at + 1))
            ++count;
        return count;
    };
    EXPECT_EQ(times("! TSFID  = 2 !"), 2);
    EXPECT_EQ(times("! TSFID  = 5 !"), 2);
    EXPECT_EQ(times("! TSFID"), 4);
    EXPECT_EQ(times("! MET = 1002, 0, 0, 10, "), 1);
    EXPECT_EQ(times("! MET = 1005, 0, 0, 10, "), 1);
}

TEST_F(FrmOpenSURFDATFile, AFaultInTheHeaderLeavesNoStationsOfTheFileBefore) {
    browse();
    input_ = directory_.write("cut.dat", surf21.substr(0, surf21.find("  1002")));
    host_.boxAnswers = {BoxAnswer::Ok};
    browse();
    EXPECT_NE(host_.boxes.back().text.find("62"), std::string::npos) << host_.boxes.back().text;
    ASSERT_EQ(child<QListWidget>("lstSURFDATStationIDs")->count(), 1);
    EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->item(0)->text(), "1001");
    EXPECT_EQ(box("txtSURFDATFile").text().toStdString(), input_);
}

TEST_F(FrmOpenSURFDATFile, ClosingDuringTheWaitHidesItAndTheResultIsStillPlotted) {
    browse();
    int pumps = 0;
    host_.onPump = [&] {
        if (++pumps == 10) click("cmdExit");
        if (pumps == 40) {
            EXPECT_FALSE(form_->isVisible());
            directory_.write("out/my data-1001_SURF_19900108-19900115_10m.frq", "");
            directory_.write("out/finished.txt", "");
        }
    };
    click("cmdView");
    EXPECT_EQ(plotted_.size(), 1U);
}

TEST_F(FrmOpenSURFDATFile, ASecondStartDuringTheWaitRunsWithoutACrash) {
    browse();
    int pumps = 0;
    host_.onPump = [&] {
        if (++pumps == 5) click("cmdView");
        if (pumps == 30) directory_.write("out/finished.txt", "");
    };
    click("cmdView");
    EXPECT_EQ(starter_.starts, 2);
    EXPECT_EQ(status(), "Finished");
}

TEST_F(FrmOpenSURFDATFile, WhatIsChosenForASecondStartDoesNotChangeTheFirst) {
    browse();
    std::filesystem::create_directory(directory_.file("other"));
    const auto make = [this](const std::string& directory, const char* station) {
        directory_.write(directory + "/my data-" + station + "_SURF_19900108-19900115_10m.frq", "");
    };
    starter_.onStart = [&](const std::string&) {
        if (starter_.starts == 1) return;
        make("other", "1003");
        directory_.write("other/finished.txt", "");
    };
    int pumps = 0;
    host_.onPump = [&] {
        if (++pumps != 5) return;
        for (const int row : {0, 1})
            child<QListWidget>("lstSURFDATStationIDs")->item(row)->setSelected(false);
        box("txtOutputDirectory").setText(QString::fromStdString(directory_.file("other/")));
        click("cmdView");
        make("out", "1001");
        make("out", "1002");
        directory_.write("out/finished.txt", "");
    };
    click("cmdView");
    EXPECT_EQ(plotted_, (std::vector<std::string>{"my data-1003_SURF_19900108-19900115_10m.frq",
                                                  "my data-1001_SURF_19900108-19900115_10m.frq",
                                                  "my data-1002_SURF_19900108-19900115_10m.frq"}));
    EXPECT_EQ(status(), "Finished");
}

TEST_F(FrmOpenSURFDATFile, TheEndOfTheProgramEndsTheWaitAtOnce) {
    browse();
    int pumps = 0;
    host_.onPump = [&] {
        if (++pumps == 7) ending_ = true;
    };
    click("cmdView");
    EXPECT_EQ(pumps, 7);
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmOpenSURFDATFile, AnUnwritableDirectoryIsToldWithRetry) {
    browse();
    std::filesystem::create_directory(directory_.file("out/run_tempoline.bat"));
    host_.boxAnswers = {BoxAnswer::Cancel};
    click("cmdView");
    EXPECT_EQ(host_.boxes[0].title, "ERROR:");
    EXPECT_NE(host_.boxes[0].text.find("(Error Number = 75)"), std::string::npos);
    EXPECT_EQ(status(), "");
}

TEST_F(FrmOpenSURFDATFile, OnlyWholeMetresAreTypedAndEnterGoesOn) {
    QLineEdit& height = box("txtAnemometerHeight");
    height.setFocus();
    height.clear();
    QTest::keyClicks(&height, "1.5-x0");
    EXPECT_EQ(height.text(), "150");
    QTest::keyClick(&height, Qt::Key_Return);
    EXPECT_TRUE(child("DTPicker_BeginDate")->hasFocus()) << "the next one that Tab comes to";
    EXPECT_EQ(starter_.starts, 0);
}

TEST_F(FrmOpenSURFDATFile, LeavingTheDirectoryCompletesIt) {
    box("txtOutputDirectory").setFocus();
    QTest::keyClicks(&box("txtOutputDirectory"), "/a b");
    box("txtTitleLine").setFocus();
    EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/a b/"));
    host_.folderAnswers = {nativePath("/picked")};
    click("cmdBrowseDirectory");
    EXPECT_EQ(host_.folderPicks[0].start, nativePath("/a b/"));
    EXPECT_EQ(host_.folderPicks[0].title, "Select a Working Directory:");
    EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/picked/"));
}

TEST_F(FrmOpenSURFDATFile, ItsButtonsOpenSeasonsAndClasses) {
    click("cmdSetSeasons");
    click("cmdSetWindSpeedClasses");
    EXPECT_EQ(seasons_, 1);
    EXPECT_EQ(classes_, 1);
}

}  // namespace
}  // namespace zg
