// The wizards through their controls: keys, Cancel, going back, the wait for the processor, names that are
// not ASCII.

#include <QClipboard>

#include "settings/CfgFile.h"
#include "tests/dialogs/gridded/GridForms.h"

namespace zg {
namespace {

class GridFields : public GridFormTest {
 protected:
    void toStep2(const GridVariation& variation, const std::string& text) {
        open(variation);
        browse({directory_.write("wind.dat", text)});
        click("cmdNext1");
        pickMethods();
    }
    /// Step 3 with this many cells of model data.
    void toCells(int count) {
        toStep2(m3dVariation, m3dText());
        type("txtNumberOfLocations", std::to_string(count).c_str());
        host_.boxAnswers = {BoxAnswer::Yes};
        click("cmdNext2");
    }
    void toStations(const GridVariation& variation, const std::string& text) {
        toStep2(variation, text);
        click("optByStation");
        click("cmdNext2");
    }
    /// Step 4 with cells of these names.
    void fillCells(const std::vector<std::string>& names) {
        toCells(static_cast<int>(names.size()));
        for (const std::string& name : names) {
            type("txtGridPointI", "1.5");
            type("txtGridPointJ", "1.25");
            box("txtFRQOutputFilename").setText(QString::fromStdString(name));
            if (&name != &names.back()) click("cmdNextLocation");
        }
        click("cmdNext3");
    }
    std::string controlFile(const std::string& root) {
        return directory_.read("out/" + root + "_tempoline.inp");
    }
    void throughProjection() {
        nextThroughProjection("cmdOK");
        form_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    /// Enter moves the focus as Tab does, and does nothing else.
    void expectEnterIsTab(const char* name) {
        SCOPED_TRACE(name);
        child(name)->setFocus();
        ASSERT_TRUE(child(name)->hasFocus());
        QTest::keyClick(child(name), Qt::Key_Tab);
        const QWidget* next = form_->focusWidget();
        EXPECT_NE(next, child(name));
        child(name)->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            child(name)->setFocus();
            // If the step was taken by mistake, it may have opened a dialog that waits for an answer.
            QTimer::singleShot(0, form_.get(), [] {
                if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
            });
            QTest::keyClick(child(name), key);
            QApplication::processEvents();
            EXPECT_EQ(form_->focusWidget(), next);
        }
        EXPECT_TRUE(host_.boxes.empty());
    }
};

TEST_F(GridFields, EnterIsTabInEveryBox) {
    toStep2(ventosVariation, ventosText());
    for (const char* name : {"txtNumberOfLocations", "txtTitleLine"}) expectEnterIsTab(name);
    throughProjection();
    for (const char* name : {"txtXCoord", "txtYCoord", "txtExtractionHeight", "txtFRQOutputFilename"})
        expectEnterIsTab(name);
    toStep2(ventosVariation, ventosText("LL WGS-84 NONE 0 0 0 0 0 0 0"));
    throughProjection();
    for (const char* name : {"txtLat", "txtLon"}) expectEnterIsTab(name);
    toStations(ventosVariation, ventosText());
    expectEnterIsTab("txtExtractionHeight2");
    list("lstStations").item(0)->setSelected(true);
    click("cmdNext3");
    expectEnterIsTab("txtOutputDirectory");
    toCells(1);
    host_.boxes.clear();
    for (const char* name : {"txtGridPointI", "txtGridPointJ"}) expectEnterIsTab(name);
}

TEST_F(GridFields, CancelClosesInEveryStep) {
    toStep2(ventosVariation, ventosText());
    click("cmdCancel");
    EXPECT_FALSE(form_->isVisible());
    toStations(ventosVariation, ventosText());
    click("cmdCancel");
    EXPECT_FALSE(form_->isVisible());
    fillCells({"one"});
    EXPECT_TRUE(child("cmdPROCESS")->isEnabled());
    click("cmdCancel");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(roses(), 0);
}

TEST_F(GridFields, CancelDuringARunHidesItAndTheRoseIsStillPlotted) {
    fillCells({"one"});
    starter_.isSlow = true;
    host_.pumps = 0;
    host_.onPump = [this] {
        if (host_.pumps == 10) click("cmdCancel");
        if (host_.pumps == 40) {
            EXPECT_FALSE(form_->isVisible());
            starter_.finish();
        }
    };
    click("cmdPROCESS");
    EXPECT_GT(roses(), 0);
    EXPECT_EQ(FileNameOf(settings.CurrentFrqPath), "one.frq");
}

TEST_F(GridFields, AMarkerThatComesLateIsWaitedForOnceAndEachRoseIsPlottedAtOnce) {
    fillCells({"one", "two"});
    starter_.isSlow = true;
    host_.now = 0;
    std::vector<std::pair<std::int64_t, std::string>> statuses;
    host_.onPump = [&] {
        if (statuses.empty() || statuses.back().second != status())
            statuses.emplace_back(host_.now / 300 * 300, status());
        if (starter_.isSlow && host_.now >= 1'000) {
            starter_.isSlow = false;
            starter_.finish();
        }
    };
    std::vector<std::pair<std::int64_t, std::string>> plotted;
    onPlot_ = [&] { plotted.emplace_back(host_.now, FileNameOf(settings.CurrentFrqPath)); };
    click("cmdPROCESS");
    EXPECT_EQ(statuses, (std::vector<std::pair<std::int64_t, std::string>>{{0, "Running.  "},
                                                                           {300, "Running.. "},
                                                                           {600, "Running..."},
                                                                           {900, "Running.  "},
                                                                           {1200, "Running.. "},
                                                                           {1500, "Running..."}}));
    EXPECT_EQ(plotted,
              (std::vector<std::pair<std::int64_t, std::string>>{{1800, "one.frq"}, {1800, "two.frq"}}));
    EXPECT_EQ(host_.now, 1800);
    EXPECT_EQ(status(), "Finished");
}

TEST_F(GridFields, TheMarkerIsWaitedForOnceMoreAfterTheLastLocation) {
    fillCells({"one", "two"});
    std::int64_t removedAt = -1;
    onPlot_ = [&] {
        if (FileNameOf(settings.CurrentFrqPath) != "two.frq") return;
        std::filesystem::remove(directory_.file("out/finished.txt"));
        removedAt = host_.now;
    };
    host_.onPump = [&] {
        if (removedAt >= 0 && host_.now >= removedAt + 1'000) directory_.write("out/finished.txt", "");
        EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Cancel") << "the run goes on";
    };
    click("cmdPROCESS");
    ASSERT_GE(removedAt, 0);
    EXPECT_EQ(host_.now, removedAt + 1'800);
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Exit");
}

TEST_F(GridFields, GoingBackFromStationsKeepsTheNumberOfLocationsOutOfReach) {
    toStations(ventosVariation, ventosText());
    click("cmdPrevious3");
    EXPECT_TRUE(child("cmdNext2")->isEnabled());
    EXPECT_FALSE(box("txtNumberOfLocations").isEnabled());
    for (const char* off :
         {"cmdNext3", "cmdPrevious3", "lstStations", "txtExtractionHeight2", "cmdSelectAll"})
        EXPECT_FALSE(child(off)->isEnabled()) << off;
    click("optByLocation");
    EXPECT_TRUE(box("txtNumberOfLocations").isEnabled());
    click("optByStation");
    click("cmdNext2");
    EXPECT_TRUE(child("cmdNext3")->isEnabled());
}

TEST_F(GridFields, ByStationAfterGridCellsSaysThatTheCellsCount) {
    const auto note = [this] { return child<QLabel>("lblCellsOfStations"); };
    toStations(m3dVariation, m3dText());
    EXPECT_FALSE(note()->isVisible()) << "nobody was asked about cells";
    click("cmdPrevious3");
    click("optByLocation");
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    type("txtGridPointI", "1.5");
    type("txtGridPointJ", "2.25");
    type("txtFRQOutputFilename", "cell");
    click("cmdNext3");
    click("cmdPrevious4");
    EXPECT_FALSE(note()->isVisible()) << "by location nothing is odd";
    click("cmdPrevious3");
    click("optByStation");
    click("cmdNext2");
    EXPECT_TRUE(note()->isVisible());
    EXPECT_EQ(
        note()->text(),
        "The question about grid cells was answered Yes: the first station selected is processed at the "
        "cell typed for location 1, the second at that for location 2, and so on. To use the coordinates "
        "of the stations instead, go back to By Location and answer No.");
    EXPECT_GE(note()->height(), note()->heightForWidth(note()->width())) << "no line is cut off";
    list("lstStations").item(0)->setSelected(true);
    click("cmdNext3");
    click("cmdPROCESS");
    const std::string text = controlFile("3DDAT_wind20050307-20050309");
    EXPECT_NE(text.find("! MET = 1.5, 2.25, 10, -1., -1., -1. !"), std::string::npos) << "as it says";
    EXPECT_NE(text.find("! MCELL = 1 !"), std::string::npos);
    click("cmdPrevious4");
    EXPECT_TRUE(note()->isVisible());
    click("cmdPrevious3");
    click("optByLocation");
    host_.boxAnswers = {BoxAnswer::No};
    throughProjection();
    click("cmdPrevious3");
    click("optByStation");
    click("cmdNext2");
    EXPECT_FALSE(note()->isVisible()) << "the last answer was No";
}

TEST_F(GridFields, APastedTitleBecomesOneLine) {
    toStep2(m3dVariation, m3dText());
    box("txtTitleLine").setFocus();
    QApplication::clipboard()->setText("two\nlines and\ta tab");
    box("txtTitleLine").paste();
    EXPECT_EQ(box("txtTitleLine").text(), "two lines and a tab");
    QTest::keyClicks(&box("txtTitleLine"), "!");
    EXPECT_EQ(box("txtTitleLine").text(), "two lines and a tab!") << "the cursor stays after it";
}

TEST_F(GridFields, EveryPickerOfThePeriodSaysItInUtc) {
    const auto pick = [this](const char* key) {
        QComboBox& zones = combo("cboTimeZone");
        for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i)
            if (timeZones.gsTimeZoneKeys[i] == key) zones.setCurrentIndex(static_cast<int>(i));
        emit zones.activated(zones.currentIndex());
        const QString tip = child("DTPicker_BeginDate")->toolTip();
        for (const char* name : {"DTPicker_BeginTime", "DTPicker_EndDate", "DTPicker_EndTime"})
            EXPECT_EQ(child(name)->toolTip(), tip) << name;
        return tip.toStdString();
    };
    toStep2(m3dVariation, m3dText());
    EXPECT_EQ(pick("UTC+0000"), "In UTC: 2005-03-07 06:00:00 to 2005-03-09 06:00:00");
    EXPECT_EQ(pick("UTC-0700"), "In UTC: 2005-03-07 06:00:00 to 2005-03-09 06:00:00");
    EXPECT_EQ(pick("UTC+0930"),
              "<p>In UTC: 2005-03-07 05:00:00 to 2005-03-09 05:00:00<br>"
              "The choice of UTC+0930 moves the period by 8.5 hours, not by 9.5.</p>");
    EXPECT_EQ(pick("UTC-0330"), "In UTC: 2005-03-07 06:00:00 to 2005-03-09 06:00:00");
    toStep2(ventosVariation, ventosText());
    const std::string before = pick("UTC+0000");
    EXPECT_EQ(before, "In UTC: 2005-03-07 06:30:15 to 2005-12-31 23:00:00");
    EXPECT_EQ(pick("UTC+0930"), "In UTC: 2005-03-06 21:00:15 to 2005-12-31 13:30:00")
        << "the period on show stays, and means other hours";
}

TEST_F(GridFields, TimesWithinTheHourAreSecondsInTheControlFile) {
    fillCells({"one"});
    child<QTimeEdit>("DTPicker_BeginTime")->setTime(QTime(6, 30, 15));
    child<QTimeEdit>("DTPicker_EndTime")->setTime(QTime(5, 45, 30));
    click("cmdPROCESS");
    const std::string text = controlFile("3DDAT_wind20050307-20050309");
    for (const char* line : {"! IBHR  = 6 !", "! IBSEC = 1815 !", "! IEHR  = 5 !", "! IESEC = 2730 !"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
}

TEST_F(GridFields, TheHeightOfStationsIsTrimmedInNamesOnly) {
    toStations(ventosVariation, ventosText());
    list("lstStations").item(0)->setSelected(true);
    box("txtExtractionHeight2").setText(" 12.5 ");
    click("cmdNext3");
    click("cmdPROCESS");
    EXPECT_EQ(FileNameOf(settings.CurrentFrqPath), "Boston_VENTOS_20050307-20051231_12.5m.frq");
    EXPECT_NE(
        controlFile("VENTOS_wind20050307-20051231").find("! MET = -71.01, 42.36,  12.5 , -1., -1., -1. !"),
        std::string::npos);
}

TEST_F(GridFields, TheConfigurationIsReadAtEachOpening) {
    const std::string berlin = "(UTC+01:00) Brussels, Berlin, Bern, Rome, Stokholm, Vienna";
    for (const GridVariation* variation : {&ventosVariation, &m3dVariation}) {
        settings.DefaultTimeZone = berlin;
        settings.MonthSeasonString = "kept";
        WriteCfgFile(settings.CfgFilePath);
        settings.DefaultTimeZone = "(UTC+03:00) Nairobi";
        open(*variation);
        EXPECT_EQ(settings.DefaultTimeZone, berlin);
        EXPECT_EQ(combo("cboTimeZone").currentText().toStdString(), berlin);
    }
}

const std::string quebec[] = {
    "Qu\xE9"
    "bec",
    "Qu\xC3\xA9"
    "bec"};

TEST_F(GridFields, AStationsNameKeepsTheBytesOfTheTable) {
    for (const std::string& name : quebec) {
        directory_.write("Station_Data.csv",
                         "STATION_DATA.CSV,V1.0\nheads\n" + name + ",1,0,0,a,b,c,46.8,-71.2,WGS-84\n");
        LoadStationData();
        toStations(ventosVariation, ventosText());
        EXPECT_EQ(list("lstStations").item(0)->text(), QString::fromUtf8("Qu\xC3\xA9"
                                                                         "bec"));
        click("cmdSelectAll");
        click("cmdNext3");
        click("cmdPROCESS");
        const std::string output = name + "_VENTOS_20050307-20051231_10m";
        const std::string text = controlFile("VENTOS_wind20050307-20051231");
        EXPECT_NE(text.find("! TSFOUT = " + output + " !"), std::string::npos);
        EXPECT_NE(text.find("! LOCMET = " + name + " !"), std::string::npos);
        EXPECT_EQ(FileNameOf(settings.CurrentFrqPath), nameOnDisk(output + ".frq"));
        EXPECT_EQ(status(), "Finished");
    }
}

TEST_F(GridFields, ATypedOutputHasTheEncodingOfTheFileSystem) {
    fillCells({quebec[1], "two"});
    click("cmdPrevious4");
    click("cmdPrevLocation");
    EXPECT_EQ(box("txtFRQOutputFilename").text().toStdString(), quebec[1]);
    click("cmdNextLocation");
    click("cmdNext3");
    click("cmdPROCESS");
    EXPECT_NE(controlFile("3DDAT_wind20050307-20050309").find("! TSFOUT = " + quebec[1] + " !"),
              std::string::npos);
    EXPECT_TRUE(fileExists(directory_.file("out/" + quebec[1] + ".frq")));
}

TEST_F(GridFields, DataFilesKeepTheBytesOfTheirNamesThroughTheList) {
    open(ventosVariation);
    std::vector<std::string> files;
    for (const std::string& name : quebec) files.push_back(directory_.write(name + ".dat", ventosText()));
    browse(files);
    list("lstVENTOSDATFiles").item(1)->setSelected(true);
    click("cmdMoveUP");
    click("cmdNext1");
    pickMethods();
    click("optByStation");
    click("cmdNext2");
    click("cmdSelectAll");
    click("cmdNext3");
    click("cmdPROCESS");
    const std::string text = controlFile("VENTOS_" + quebec[1] + "20050307-20051231");
    const std::size_t first = text.find("! METINP = " + files[1] + " !");
    const std::size_t second = text.find("! METINP = " + files[0] + " !");
    EXPECT_NE(second, std::string::npos);
    EXPECT_LT(first, second);
}

}  // namespace
}  // namespace zg
