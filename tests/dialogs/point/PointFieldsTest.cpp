// The fields of the dialogs for point data: leaving, browsing, keys and odd contents.

#include "dialogs/point/FrmOpenAERMETFile.h"
#include "dialogs/point/FrmOpenAMMNETDataFile.h"
#include "dialogs/point/FrmOpenSURFDATFile.h"
#include "dialogs/point/FrmOpenTSFDataFile.h"
#include "dialogs/point/FrmOpenUPDATFile.h"
#include "tests/dialogs/point/PointDialogs.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

class PointFields : public PointDialogs {
 protected:
    struct Kind {
        const char* name;
        std::function<void()> open;
        const char* file;
        std::string text;
    };

    /// Opens one dialog after the other and does the same in each, with a file chosen.
    void inEach(const std::function<void(const Kind&)>& action) {
        const std::vector<Kind> kinds = {
            {"SURF", [this] { open<frmOpenSURFDATFile>(); }, "s.dat", surfText},
            {"UP", [this] { open<frmOpenUPDATFile>(); }, "u.dat", upText},
            {"monitor", [this] { open<frmOpenAMMNETDataFile>(); }, "m.csv", csvText},
            {"surface", [this] { open<frmOpenAERMETFile>(InputKind::AermSfc); }, "a.sfc", sfcText},
            {"profile", [this] { open<frmOpenAERMETFile>(InputKind::AermPfl); }, "a.pfl", pflText},
            {"series", [this] { open<frmOpenTSFDataFile>(); }, "t.tsf", seriesText}};
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(kind.name);
            kind.open();
            browse(kind.file, kind.text);
            box("txtFRQOutputFilename").setText("x");
            action(kind);
        }
    }
    void setStatus(const char* text) { child<QLabel>("lblStatus")->setText(QString::fromLatin1(text)); }
    void leave(const char* from, const char* to) {
        child(from)->setFocus();
        ASSERT_TRUE(child(from)->hasFocus()) << from;
        child(to)->setFocus();
    }
    void typeInto(const char* name, const char* text) {
        box(name).setFocus();
        box(name).clear();
        QTest::keyClicks(&box(name), QString::fromLatin1(text));
    }
};

TEST_F(PointFields, LeavingTheDirectoryTakesItsMarkAndTheStatus) {
    inEach([this](const Kind&) {
        box("txtOutputDirectory").clear();
        refusal();
        EXPECT_TRUE(marked("txtOutputDirectory"));
        setStatus("old");
        leave("txtOutputDirectory", "txtTitleLine");
        EXPECT_TRUE(marked("txtOutputDirectory")) << "it is still empty";
        EXPECT_EQ(status(), "old");
        typeInto("txtOutputDirectory", "/x");
        leave("txtOutputDirectory", "txtTitleLine");
        EXPECT_FALSE(marked("txtOutputDirectory"));
        EXPECT_EQ(status(), "");
        EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/x/"));
        setStatus("new");
        leave("txtOutputDirectory", "txtTitleLine");
        EXPECT_EQ(status(), "new") << "only with the mark";
    });
}

TEST_F(PointFields, LeavingTheNameTakesItsMarkAndTheStatus) {
    open<frmOpenSURFDATFile>();
    browse("s.dat", surfText);
    EXPECT_EQ(refusal(), "Please enter an output filename.");
    setStatus("old");
    leave("txtFRQOutputFilename", "txtTitleLine");
    EXPECT_TRUE(marked("txtFRQOutputFilename"));
    EXPECT_EQ(status(), "old");
    typeInto("txtFRQOutputFilename", "x");
    leave("txtFRQOutputFilename", "txtTitleLine");
    EXPECT_FALSE(marked("txtFRQOutputFilename"));
    EXPECT_EQ(status(), "");
}

TEST_F(PointFields, LeavingTheStartTakesTheStatus) {
    inEach([this](const Kind&) {
        setStatus("Finished");
        leave("cmdView", "txtTitleLine");
        EXPECT_EQ(status(), "");
    });
}

TEST_F(PointFields, AnotherSelectionOfStationsTakesTheStatus) {
    open<frmOpenSURFDATFile>();
    browse("s.dat", surfText);
    setStatus("Finished");
    child<QListWidget>("lstSURFDATStationIDs")->item(0)->setSelected(false);
    EXPECT_EQ(status(), "");
}

TEST_F(PointFields, TheFolderPickerHasItsTitleAndStartsInTheDirectory) {
    inEach([this](const Kind& kind) {
        host_.folderPicks.clear();
        host_.folderAnswers = {nativePath("/picked"), ""};
        click("cmdBrowseDirectory");
        ASSERT_EQ(host_.folderPicks.size(), 1U);
        EXPECT_EQ(host_.folderPicks[0].title, std::string(kind.name) == "SURF"
                                                  ? "Select a Working Directory:"
                                                  : "Select a Output Directory:");
        EXPECT_EQ(host_.folderPicks[0].start, directory_.file("out/"));
        EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/picked/"));
        click("cmdBrowseDirectory");
        EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/picked/"))
            << "nothing was picked";
    });
}

TEST_F(PointFields, TheNextFileIsLookedForWhereTheLastOneWas) {
    inEach([this](const Kind& kind) {
        EXPECT_EQ(host_.openPicks.back().directory, "") << "each opening starts afresh";
        browse(kind.file, kind.text);
        EXPECT_EQ(host_.openPicks.back().directory, directory_.file(""));
        EXPECT_EQ(host_.openPicks.back().fileName, "");
    });
}

TEST_F(PointFields, OnlyADirectoryOfAnotherMachineGetsNoSeparator) {
    inEach([this](const Kind&) {
        host_.openAnswers = {"\\\\server\\share\\x.dat"};
        host_.boxAnswers = {BoxAnswer::Ok};
        click("cmdBrowseFile");
        EXPECT_EQ(box("txtOutputDirectory").text(), "\\\\server\\share");
        host_.openAnswers = {""};
        click("cmdBrowseFile");
        EXPECT_EQ(host_.openPicks.back().directory, "\\\\server\\share");
    });
}

TEST_F(PointFields, ADirectoryOfBlanksDoesNotExist) {
    inEach([this](const Kind& kind) {
        const std::string message = std::string(kind.name) == "UP"
                                        ? "Selected Directory For Output does not exist."
                                        : "Selected Output Directory does not exist.";
        box("txtOutputDirectory").setText(" ");
        EXPECT_EQ(refusal(), message);
        EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath(" /"))
            << "completed as any other, and yet not the root";
        EXPECT_EQ(refusal(), message);
        EXPECT_TRUE(marked("txtOutputDirectory"));
    });
}

TEST_F(PointFields, BlanksRoundADirectoryDoNotCount) {
    inEach([this](const Kind&) {
        starter_.onStart = [this](const std::string&) { directory_.write("out/finished.txt", ""); };
        starter_.starts = 0;
        box("txtOutputDirectory").setText(QString::fromStdString("  " + directory_.file("out")));
        click("cmdView");
        EXPECT_EQ(starter_.starts, 1);
    });
}

TEST_F(PointFields, KeysOfTheHeightsAndOfThePlace) {
    open<frmOpenUPDATFile>();
    typeInto("txtStationID", "a-1.2,3");
    EXPECT_EQ(box("txtStationID").text(), "123");
    typeInto("txtExtractionHeights", "1x0,-2.5;");
    EXPECT_EQ(box("txtExtractionHeights").text(), "10,2.5");
    const auto checkPlace = [this] {
        for (const char* name : {"txtXLoc", "txtYLoc"}) {
            typeInto(name, "x-1.5,+");
            EXPECT_EQ(box(name).text(), "-1.5") << name;
        }
        typeInto("txtAnemometerHeight", "x-2.5,");
        EXPECT_EQ(box("txtAnemometerHeight").text(), "2.5");
    };
    for (const InputKind kind : {InputKind::AermSfc, InputKind::AermPfl}) {
        open<frmOpenAERMETFile>(kind);
        typeInto("txtStationID", "a-1.2,3");
        EXPECT_EQ(box("txtStationID").text(), "123");
        checkPlace();
    }
    open<frmOpenTSFDataFile>();
    typeInto("txtStationID", "a-1.2");
    EXPECT_EQ(box("txtStationID").text(), "a-1.2") << "any name";
    checkPlace();
    open<frmOpenAMMNETDataFile>();
    checkPlace();
}

TEST_F(PointFields, EnterGoesOnAndStartsNothing) {
    const auto goesOn = [this](const char* from, const char* to) {
        child(from)->setFocus();
        QTest::keyClick(child(from), Qt::Key_Return);
        EXPECT_TRUE(child(to)->hasFocus()) << from;
    };
    open<frmOpenUPDATFile>();
    goesOn("txtStationID", "txtExtractionHeights");
    goesOn("txtExtractionHeights", "DTPicker_BeginDate");
    open<frmOpenAERMETFile>(InputKind::AermSfc);
    goesOn("txtStationID", "txtXLoc");
    goesOn("txtXLoc", "txtYLoc");
    goesOn("txtYLoc", "txtAnemometerHeight");
    goesOn("txtAnemometerHeight", "DTPicker_BeginDate");
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(PointFields, HalfHourZonesMoveTheHoursOfUpByTheirOwnRule) {
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    pickZone("(UTC+05:30) Bombay, Calcutta, Madras, New Delhi");
    EXPECT_EQ(begin(), "1990-01-08 05:30:00") << "four and a half hours on, and the minute stays";
    EXPECT_EQ(end(), "1990-01-15 16:00:00");
    pickZone("(UTC+00:00) Casablanca, Monrovia");
    EXPECT_EQ(begin(), "1990-01-08 01:30:00") << "the minutes on show count on the way back";
    EXPECT_EQ(end(), "1990-01-15 11:00:00");
    browse("u.dat", upText);
    pickZone("(UTC-03:30) Newfoundland");
    EXPECT_EQ(begin(), "1990-01-07 21:30:00");
    EXPECT_EQ(end(), "1990-01-15 08:00:00");
}

TEST_F(PointFields, EveryPickerOfAPeriodSaysItInUtc) {
    const auto expectTips = [this](const std::string& tip) {
        for (const char* name :
             {"DTPicker_BeginDate", "DTPicker_BeginTime", "DTPicker_EndDate", "DTPicker_EndTime"})
            EXPECT_EQ(child(name)->toolTip().toStdString(), tip) << name;
    };
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    expectTips("In UTC: 1990-01-08 00:30:00 to 1990-01-15 12:00:00");
    pickZone("(UTC+05:30) Bombay, Calcutta, Madras, New Delhi");
    expectTips(
        "<p>In UTC: 1990-01-08 00:00:00 to 1990-01-15 10:30:00<br>"
        "The choice of UTC+0530 moves the period by 4.5 hours, not by 5.5.</p>");
    pickZone("(UTC-03:30) Newfoundland");
    expectTips("In UTC: 1990-01-08 01:00:00 to 1990-01-15 11:30:00");
    child<QDateEdit>("DTPicker_EndDate")->setDate(QDate(1990, 1, 20));
    child<QTimeEdit>("DTPicker_EndTime")->setTime(QTime(23, 30));
    expectTips("In UTC: 1990-01-08 01:00:00 to 1990-01-21 03:00:00");
    child<QDateEdit>("DTPicker_EndDate")->setDate(QDate(9999, 12, 31));
    expectTips("");
    open<frmOpenSURFDATFile>();
    browse("s.dat", surfText);
    expectTips("In UTC: 1990-01-08 11:30:15 to 1990-01-16 04:00:00");
    pickZone("(UTC+05:30) Bombay, Calcutta, Madras, New Delhi");
    expectTips("In UTC: 1990-01-08 01:00:15 to 1990-01-15 17:30:00");
    child<QComboBox>("cboTimeZone")->setCurrentIndex(-1);
    expectTips("");
}

TEST_F(PointFields, ATypedStationIsNotCompletedToAnotherOfTheFile) {
    open<frmOpenAMMNETDataFile>();
    browse("m.csv", csvText);
    auto* stationBox = child<QComboBox>("cboStationID");
    stationBox->setFocus();
    stationBox->lineEdit()->selectAll();
    QTest::keyClicks(stationBox, "A");
    child("txtXLoc")->setFocus();
    EXPECT_EQ(stationBox->currentText(), "A") << "the file has A1";
    stationBox->setFocus();
    stationBox->lineEdit()->selectAll();
    QTest::keyClicks(stationBox, "a1");
    QTest::keyClick(stationBox, Qt::Key_Return);
    EXPECT_EQ(stationBox->currentText(), "a1");
}

TEST_F(PointFields, AFileOlderThanTheCalendarOfTodayShowsItsOwnPeriod) {
    open<frmOpenSURFDATFile>();
    std::string text = surfText;
    for (std::size_t at = 0; (at = text.find("1990", at)) != std::string::npos;) text.replace(at, 4, "1701");
    browse("s.dat", text);
    EXPECT_EQ(begin(), "1701-01-08 06:30:15");
    EXPECT_EQ(end(), "1701-01-15 23:00:00");
}

TEST_F(PointFields, AnAverageOfLessThanNoTimeIsNoStep) {
    open<frmOpenAMMNETDataFile>();
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("m.csv", "DATETIME,DATAAVID,STNCODE\n3/15/2005 1:00:00,-60,A1\n3/15/2005 2:00:00,-60,A1\n");
    ASSERT_EQ(host_.boxes.size(), 1U) << "it is told, and no other step is shown in its place";
    EXPECT_EQ(child<QTimeEdit>("DTPicker_TimeStep")->time(), QTime(1, 0));
}

TEST_F(PointFields, TheFirstVersionOfUpHasWholeHours) {
    open<frmOpenUPDATFile>();
    child<QTimeEdit>("DTPicker_BeginTime")->setTime(QTime(5, 45, 30));
    child<QTimeEdit>("DTPicker_EndTime")->setTime(QTime(5, 45, 30));
    browse("u.dat", "up.dat 2.0 x\n1\nc\nNONE\n1990 8 1 1990 15 24\nskipped\n x 77 y\n");
    EXPECT_EQ(begin(), "1990-01-08 00:00:00") << "its begin is an hour earlier";
    EXPECT_EQ(end(), "1990-01-16 00:00:00") << "its end is not";
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(),
              "(UTC+00:00) Greenwich Mean Time: Dublin, Edinburgh, Lisbon, London");
    EXPECT_EQ(box("txtStationID").text(), "77");
}

TEST_F(PointFields, AnUnknownVersionOfUpIsSilent) {
    open<frmOpenUPDATFile>();
    browse("u.dat", upText);
    const std::string before = begin();
    browse("v.dat", "UP.DAT 2.2\n");
    EXPECT_EQ(begin(), before);
    EXPECT_EQ(box("txtStationID").text(), "4417");
    EXPECT_FALSE(marked("txtUPDATFile"));
}

TEST_F(PointFields, AWholeHourOfSecondsIsNoTimeInUp) {
    open<frmOpenUPDATFile>();
    std::string text = upText;
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("u.dat", text.replace(text.find("15 12 0"), 7, "15 23 3600"));
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text.substr(0, 35), "Run-time error '13':\n\nType mismatch");
    EXPECT_EQ(child<QDateEdit>("DTPicker_EndDate")->date(), QDate::currentDate()) << "nothing is shown of it";
}

TEST_F(PointFields, StationsOfOneNameMakeOneRose) {
    open<frmOpenSURFDATFile>();
    std::string text = surfText;
    text.replace(text.find("0 1\r\n1001"), 9, "0 2\r\n1001\r\n1001");
    browse("s.dat", text);
    box("txtFRQOutputFilename").setText("x");
    EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->count(), 2);
    const std::string name = "s-1001_SURF_19900108-19900115_10m";
    made_ = {name};
    click("cmdView");
    const std::string file = control("s_SURF_19900108-19900115");
    for (const char* line : {"! NTSFOUT = 2 !", "! TSFID  = 1 !\r\n     ! TSFOUT = s-1001_SURF_",
                             "! TSFID  = 2 !\r\n     ! TSFOUT = s-1001_SURF_"})
        EXPECT_NE(file.find(line), std::string::npos) << line;
    EXPECT_EQ(plotted_, (std::vector<std::string>{name + ".frq", name + ".frq"}));
}

TEST_F(PointFields, AZoneInSmallLettersIsNoneOfTheTableForATimeSeries) {
    open<frmOpenTSFDataFile>();
    std::string text = seriesText;
    browse("t.tsf", text.replace(text.find("UTC-0500"), 8, "utc-0500"));
    EXPECT_EQ(begin(), "2005-03-07 06:30:15") << "the line counts as that of the zone";
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentIndex(), 0);
}

TEST_F(PointFields, ButItIsOneForTheOthers) {
    open<frmOpenSURFDATFile>();
    std::string text = surfText;
    browse("s.dat", text.replace(text.find("UTC-0500"), 8, "utc-0500"));
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(), "(UTC-05:00) Indiana (East)");
}

TEST_F(PointFields, AFaultOfAMonitorFileLeavesNothingOfTheFileBefore) {
    open<frmOpenAMMNETDataFile>();
    browse("m.csv", csvText);
    auto* list = child<QComboBox>("cboStationID");
    EXPECT_EQ(list->currentText(), "A1");
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("n.csv", "DATETIME,DATAAVID,STNCODE\n3/15/2005 1:00:00,60,B1\n3/15/2005 2:00:00,60,B2\nx,y\n");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text.substr(0, 21), "Run-time error '9':\n\n");
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->itemText(1), "B2") << "the stations up to the fault";
    EXPECT_EQ(list->currentText(), "B1");
    const std::string today = QDate::currentDate().toString("yyyy-MM-dd 00:00:00").toStdString();
    EXPECT_EQ(begin(), today);
    EXPECT_EQ(end(), today);
    EXPECT_EQ(refusal(), "Error: The Ending Date/Time must be later than the Starting Date/Time.");
    host_.boxAnswers = {BoxAnswer::Ok};
    browse("o.csv", "DATETIME,STNCODE\n3/15/2005 1:00:00,B1\n");
    EXPECT_EQ(list->count(), 0) << "the fault came before the first station";
    EXPECT_EQ(list->currentText(), "");
}

}  // namespace
}  // namespace zg
