// Both wizards through their controls, from the first click to the roses in the tables.

#include "tests/dialogs/gridded/GridForms.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

TEST_F(GridFormTest, OpensWithTheFirstStepActive) {
    open(ventosVariation);
    EXPECT_EQ(form_->windowTitle(), "Generate Wind Rose Plots from VENTOS Data");
    EXPECT_EQ(child<QGroupBox>("Frame_Step1")->title().remove('&'), "INPUT VENTOS DATA FILE(S)");
    EXPECT_EQ(child<QGroupBox>("Frame_Step2")->title(), "PROCESSING INFORMATION");
    EXPECT_EQ(child<QGroupBox>("Frame_Step4")->title(), "DIRECTORY FOR OUTPUT");
    EXPECT_EQ(child<QLabel>("lblInstructions")->text(),
              "Use these buttons to arrange the data files so that the data are in chronological order.");
    EXPECT_EQ(child<QDateEdit>("DTPicker_BeginDate")->date(), QDate::currentDate());
    EXPECT_EQ(child<QTimeEdit>("DTPicker_TimeStep")->time(), QTime(1, 0));
    EXPECT_EQ(combo("cboSpatialInterpolationMethod").count(), 2);
    EXPECT_EQ(combo("cboSpatialInterpolationMethod").itemText(0), "BILINEAR");
    EXPECT_EQ(combo("cboSpatialInterpolationMethod").currentIndex(), -1);
    EXPECT_EQ(combo("cboTimeZone").currentText().toStdString(), settings.DefaultTimeZone);
    EXPECT_EQ(list("lstStations").count(), 2);
    EXPECT_EQ(child<QLabel>("lblfrq")->text(), ".frq");
    EXPECT_TRUE(child("cmdNext1")->isEnabled());
    EXPECT_TRUE(child("cmdCancel")->isEnabled());
    for (const char* off : {"cmdNext2", "txtTitleLine", "cmdNext3", "cmdPROCESS", "txtOutputDirectory"})
        EXPECT_FALSE(child(off)->isEnabled()) << off;
    EXPECT_EQ(child("cboVertProfilingMethod"), nullptr);
    open(m3dVariation);
    EXPECT_EQ(form_->windowTitle(), "Generate Wind Rose Plots from MM5 or WRF 3D.DAT Data");
    EXPECT_EQ(combo("cboVertProfilingMethod").count(), 3);
    EXPECT_EQ(combo("cboVertProfilingMethod").itemText(0), "METSTAT");
    EXPECT_EQ(combo("cboVertProfilingMethod").itemText(2), "DIRECT");
}

TEST_F(GridFormTest, FilesArePickedMovedAndRemovedAsABlock) {
    open(ventosVariation);
    QListWidget& files = list("lstVENTOSDATFiles");
    browse({"/d/a.dat", "/d/b.dat", "/d/c.dat", "/d/d.dat"});
    EXPECT_EQ(host_.filesPicks.at(0).filter, "All Files (*.*)|*.*|DAT Files (*.dat)|*.dat");
    files.item(1)->setSelected(true);
    files.item(2)->setSelected(true);
    const auto order = [&] {
        std::string letters;
        for (int i = 0; i < files.count(); ++i) letters += files.item(i)->text()[3].toLatin1();
        return letters;
    };
    click("cmdMoveUP");
    EXPECT_EQ(order(), "bcad");
    click("cmdMoveUP");
    EXPECT_EQ(order(), "bcad");
    click("cmdMoveDOWN");
    click("cmdMoveDOWN");
    EXPECT_EQ(order(), "adbc");
    click("cmdMoveDOWN");
    EXPECT_EQ(order(), "adbc");
    EXPECT_EQ(files.selectedItems().count(), 2);
    click("cmdRemoveSelection");
    EXPECT_EQ(order(), "ad");
    browse({});
    EXPECT_EQ(order(), "ad");
}

TEST_F(GridFormTest, AMarkedListIsCleanOnceItHasFiles) {
    open(m3dVariation);
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdNext1");
    EXPECT_EQ(host_.boxes.at(0).text, "Please select 3D.DAT File(s) for input.");
    EXPECT_EQ(fieldMark(list("lst3DDATFiles")), yellowMark);
    browse({"/d/a.m3d"});
    EXPECT_EQ(host_.filesPicks.at(0).filter,
              "DAT Files (*.dat)|*.dat|M3D Files (*.m3d)|*.m3d|All Files (*.*)|*.*");
    EXPECT_EQ(fieldMark(list("lst3DDATFiles")), cleanMark);
}

TEST_F(GridFormTest, AYellowFieldStaysYellowThroughItsStep) {
    open(ventosVariation);
    browse({directory_.write("wind.dat", ventosText())});
    click("cmdNext1");
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdNext2");
    EXPECT_EQ(host_.boxes.at(0).text,
              "Please select a spatial interpolation method from the pull-down menu.");
    QComboBox& spatial = combo("cboSpatialInterpolationMethod");
    EXPECT_EQ(fieldMark(spatial), yellowMark);
    click("cmdPrevious2");
    EXPECT_FALSE(spatial.isEnabled());
    EXPECT_EQ(fieldMark(spatial), darkYellowMark);
    EXPECT_EQ(fieldMark(box("txtTitleLine")), buttonFaceColour);
    click("cmdNext1");
    EXPECT_EQ(fieldMark(spatial), yellowMark);
    EXPECT_EQ(fieldMark(box("txtTitleLine")), cleanMark);
    spatial.setFocus();
    spatial.setCurrentIndex(1);
    box("txtTitleLine").setFocus();
    EXPECT_EQ(fieldMark(spatial), cleanMark);
}

TEST_F(GridFormTest, KeysAreFilteredAndEnterGoesOn) {
    open(m3dVariation);
    browse({directory_.write("wind.dat", m3dText())});
    click("cmdNext1");
    type("txtNumberOfLocations", "a-1.2");
    EXPECT_EQ(box("txtNumberOfLocations").text(), "12");
    QTest::keyClick(&box("txtNumberOfLocations"), Qt::Key_Return);
    EXPECT_TRUE(box("txtTitleLine").hasFocus());
    pickMethods();
    type("txtNumberOfLocations", "1");
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    for (const char* name : {"txtGridPointI", "txtGridPointJ", "txtExtractionHeight"}) {
        type(name, "x-1.5,");
        EXPECT_EQ(box(name).text(), "-1.5") << name;
    }
    for (const char* name : {"txtLat", "txtLon"}) {
        QTest::keyClicks(&box(name), "x-1.5,");
        EXPECT_EQ(box(name).text(), "1.5") << name;
    }
    for (const char* name : {"txtXCoord", "txtYCoord", "txtExtractionHeight2"}) {
        box(name).clear();
        QTest::keyClicks(&box(name), "x-1.5,");
        EXPECT_EQ(box(name).text(), "-1.5") << name;
    }
}

TEST_F(GridFormTest, OneVentosLocationBecomesARose) {
    open(ventosVariation);
    browse({directory_.write("wind.dat", ventosText("LL WGS-84 NONE 0 0 0 0 0 0 0"))});
    click("cmdNext1");
    EXPECT_EQ(child<QDateEdit>("DTPicker_BeginDate")->date(), QDate(2005, 3, 7));
    EXPECT_EQ(child<QTimeEdit>("DTPicker_BeginTime")->time(), QTime(6, 30, 15));
    EXPECT_EQ(child<QDateEdit>("DTPicker_EndDate")->date(), QDate(2005, 12, 31));
    pickMethods();
    click("cmdSetSeasons");
    click("cmdSetWindSpeedClasses");
    EXPECT_EQ(seasons_ + classes_, 2);
    nextThroughProjection("cmdCancel");
    EXPECT_TRUE(child("cmdNext2")->isEnabled()) << "Cancel stays in step 2";
    nextThroughProjection("cmdOK");
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #1 of 1");
    EXPECT_TRUE(child("Frame_LL")->isVisible());
    EXPECT_FALSE(child("Frame_XY")->isVisible());
    type("txtLat", "41.25");
    type("txtLon", "74.5");
    type("txtFRQOutputFilename", "First");
    click("cmdNext3");
    click("cmdPROCESS");
    EXPECT_GT(roses(), 0);
    EXPECT_EQ(FileNameOf(settings.CurrentFrqPath), "First.frq");
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Exit");
    form_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    child("cmdPROCESS")->setFocus();
    child("cmdPrevious4")->setFocus();
    EXPECT_EQ(status(), "");
    click("cmdCancel");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(GridFormTest, ThreeModelCellsThenTwoThenStations) {
    open(m3dVariation);
    browse({directory_.write("wind.m3d", m3dText())});
    click("cmdNext1");
    pickMethods();
    type("txtNumberOfLocations", "3");
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    for (const char* name : {"one", "two", "three"}) {
        type("txtGridPointI", "1.5");
        type("txtGridPointJ", "1.25");
        type("txtFRQOutputFilename", name);
        if (std::string(name) != "three") click("cmdNextLocation");
    }
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #3 of 3");
    click("cmdNext3");
    click("cmdPROCESS");
    EXPECT_EQ(FileNameOf(settings.CurrentFrqPath), "three.frq");
    click("cmdPrevious4");
    click("cmdPrevLocation");
    EXPECT_EQ(box("txtFRQOutputFilename").text(), "two");
    click("cmdPrevious3");
    type("txtNumberOfLocations", "2");
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #1 of 2");
    EXPECT_EQ(box("txtFRQOutputFilename").text(), "one");
    click("cmdNextLocation");
    click("cmdNext3");
    for (const char* name : {"one.frq", "two.frq", "three.frq"})
        std::filesystem::remove(directory_.file(std::string("out/") + name));
    click("cmdPROCESS");
    EXPECT_TRUE(fileExists(directory_.file("out/two.frq")));
    EXPECT_FALSE(fileExists(directory_.file("out/three.frq")));
    click("cmdPrevious4");
    click("cmdPrevious3");
    click("optByStation");
    EXPECT_FALSE(box("txtNumberOfLocations").isEnabled());
    click("cmdNext2");
    EXPECT_TRUE(child("Frame_Stations")->isVisible());
    EXPECT_FALSE(child("Frame_Coordinates")->isVisible());
    click("cmdSelectAll");
    EXPECT_EQ(list("lstStations").selectedItems().count(), 2);
    click("cmdDeselectAll");
    list("lstStations").item(1)->setSelected(true);
    click("cmdNext3");
    click("cmdPROCESS");
    EXPECT_EQ(FileNameOf(settings.CurrentFrqPath), "Albany_3DDAT_20050307-20050309_10m.frq");
}

TEST_F(GridFormTest, ANumberOfLocationsBeyondAllNumbersIsToldOnceTheProjectionIsClosed) {
    open(ventosVariation);
    browse({directory_.write("wind.dat", ventosText())});
    click("cmdNext1");
    pickMethods();
    type("txtNumberOfLocations", "99999999999");
    host_.onBox = [] { EXPECT_EQ(QApplication::activeModalWidget(), nullptr); };
    host_.boxAnswers = {BoxAnswer::Ok};
    nextThroughProjection("cmdOK");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '6':\n\nOverflow");
}

TEST_F(GridFormTest, StationsStayMarkedUntilOneIsSelected) {
    open(ventosVariation);
    browse({directory_.write("wind.dat", ventosText())});
    click("cmdNext1");
    pickMethods();
    click("optByStation");
    click("cmdNext2");
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdNext3");
    EXPECT_EQ(host_.boxes.at(0).text, "Please select at least one station.");
    QListWidget& rows = list("lstStations");
    rows.setFocus();
    box("txtExtractionHeight2").setFocus();
    EXPECT_EQ(fieldMark(rows), yellowMark);
    rows.setFocus();
    rows.item(0)->setSelected(true);
    box("txtExtractionHeight2").setFocus();
    EXPECT_EQ(fieldMark(rows), cleanMark);
}

TEST_F(GridFormTest, ATimeStepTooLongIsToldAndTheFormGoesOn) {
    open(ventosVariation);
    browse({directory_.write("wind.dat", ventosText())});
    click("cmdNext1");
    pickMethods();
    child<QTimeEdit>("DTPicker_TimeStep")->setTime(QTime(10, 0));
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdNext2");
    EXPECT_EQ(host_.boxes.at(0).text, "Run-time error '6':\n\nOverflow");
    EXPECT_TRUE(child("cmdNext2")->isEnabled());
}

TEST_F(GridFormTest, AZoneMovesThePeriodOfModelData) {
    open(m3dVariation);
    browse({directory_.write("wind.dat", m3dText())});
    click("cmdNext1");
    QComboBox& zones = combo("cboTimeZone");
    for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i)
        if (timeZones.gsTimeZoneKeys[i] == "UTC-0700") zones.setCurrentIndex(static_cast<int>(i));
    emit zones.activated(zones.currentIndex());
    EXPECT_EQ(child<QDateEdit>("DTPicker_BeginDate")->date(), QDate(2005, 3, 6));
    EXPECT_EQ(child<QTimeEdit>("DTPicker_BeginTime")->time(), QTime(23, 0));
}

TEST_F(GridFormTest, TheOutputDirectoryEndsInASeparator) {
    open(ventosVariation);
    browse({directory_.write("wind.dat", ventosText())});
    click("cmdNext1");
    EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), directory_.file(""));
    click("optByStation");
    pickMethods();
    click("cmdNext2");
    list("lstStations").item(0)->setSelected(true);
    click("cmdNext3");
    type("txtOutputDirectory", "/some/where");
    child("cmdBrowseDirectory")->setFocus();
    EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/some/where/"));
    host_.folderAnswers = {nativePath("/other")};
    click("cmdBrowseDirectory");
    EXPECT_EQ(host_.folderPicks.at(0).title, "Select a Working Directory:");
    EXPECT_EQ(box("txtOutputDirectory").text().toStdString(), nativePath("/other/"));
}

TEST_F(GridFormTest, TheStatusStaysWhileAnotherProgramIsInFront) {
    open(ventosVariation);
    child("cmdPROCESS")->setEnabled(true);
    child("cmdPROCESS")->setFocus();
    child<QLabel>("lblStatus")->setText("Finished");
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent rests(QEvent::FocusOut, reason);
        QApplication::sendEvent(child("cmdPROCESS"), &rests);
        EXPECT_EQ(status(), "Finished");
    }
    QFocusEvent goesOn(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(child("cmdPROCESS"), &goesOn);
    EXPECT_EQ(status(), "");
}

}  // namespace
}  // namespace zg
