// The wizard's steps without a window.

#include "dialogs/gridded/GridWizard.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "headers/GridFileHeader.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/dialogs/gridded/FakeGridView.h"
#include "tests/headers/GridFiles.h"
#include "tests/support/FakeStarter.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Raises.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class GridWizardTest : public ::testing::Test {
 protected:
    explicit GridWizardTest(const GridVariation& variation = ventosVariation) : variation_(variation) {}
    void SetUp() override {
        program_.deliver({"TimeZones.txt"});
        starter_.onStart = [this](const std::string& directory) {
            for (const std::string& name : made_) LineWriter(directory + "/" + name + ".frq").writeLine("x");
            LineWriter(directory + "/finished.txt").writeLine("x");
        };
        directory_.write("Station_Data.csv",
                         "STATION_DATA.CSV,V1.0\nheads\n"
                         "Boston,1,0,0,a,b,c,42.36,-71.01,NAR-B\n"
                         "Albany,2,0,0,a,b,c,42.75,-73.8,WGS-84\n"
                         "Burlington,3,0,0,a,b,c,44.47,-73.15,NAS-C\n");
        startSettings();
        LoadTimeZones();
        LoadStationData();
        wizard_.emplace(
            variation_, view_, host_, starter_,
            ProcessingWindow{[this](const std::string& path) { plotted_.push_back(FileNameOf(path)); },
                             [] { return false; }, [] {}, [] {}});
        view_.stationRows = {"Boston", "Albany", "Burlington"};
        view_.selected = {false, false, false};
        wizard_->Form_Load();
        std::filesystem::create_directory(directory_.file("out"));
    }
    /// Goes through step 1 with one file.
    void openFile(const std::string& text) {
        view_.files = {directory_.write("wind.dat", text)};
        wizard_->cmdNext1_Click();
        ASSERT_EQ(view_.step1to4(), 2);
        view_.texts["cboTimeZone"] = "some zone";
        view_.texts["cboSpatialInterpolationMethod"] = "NEAREST GRID CELL";
        view_.texts["cboVertProfilingMethod"] = "METSTAT";
        view_.texts["txtTitleLine"] = "A title";
        view_.texts["txtOutputDirectory"] = directory_.file("out/");
    }
    /// Presses OK in the projection dialog, with the native projection and this datum.
    void acceptProjection(const std::string& datum) {
        view_.onProjection = [this, datum] {
            if (!datum.empty()) projection.DATUM = datum;
            return true;
        };
    }
    void fillLocation(const std::string& x, const std::string& y, const std::string& name) {
        view_.texts["txtXCoord"] = view_.texts["txtLon"] = view_.texts["txtGridPointI"] = x;
        view_.texts["txtYCoord"] = view_.texts["txtLat"] = view_.texts["txtGridPointJ"] = y;
        view_.texts["txtFRQOutputFilename"] = name;
    }
    /// Runs an action that shows one box and returns its text.
    std::string boxOf(const std::function<void()>& action, BoxAnswer answer = BoxAnswer::Ok,
                      const char* title = "Error") {
        host_.boxes.clear();
        host_.boxAnswers = {answer};
        action();
        if (host_.boxes.size() != 1) return "boxes: " + std::to_string(host_.boxes.size());
        EXPECT_EQ(host_.boxes[0].title, title);
        return host_.boxes[0].text;
    }
    std::string next2() {
        return boxOf([this] { wizard_->cmdNext2_Click(); });
    }
    bool enabled(const char* control) { return view_.enabledControls[control]; }
    std::string caption() { return view_.texts["Frame_Step3"]; }
    std::string runRoot() { return wizard_->plan().control.base; }
    std::string controlFile() { return directory_.read("out/" + runRoot() + "_tempoline.inp"); }
    /// The file made by the script, given this test's input.
    std::string expected(const std::string& name) {
        std::string text = readWholeFile(ZG_SOURCE_DIR "/tests/processing/control/" + name);
        const std::string mark = "@FILE@";
        return text.replace(text.find(mark), mark.size(), view_.files[0]);
    }
    std::string status() { return view_.texts["lblStatus"]; }

    const GridVariation& variation_;
    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    FakeStarter starter_;
    std::vector<std::string> made_;  ///< names of the outputs that a run makes
    FakeGridView view_;
    std::vector<std::string> plotted_;
    std::optional<GridWizard> wizard_;
};

class M3dWizard : public GridWizardTest {
 protected:
    M3dWizard() : GridWizardTest(m3dVariation) {}
};
using VentosWizard = GridWizardTest;

TEST_F(VentosWizard, StartsInStepOneWithItsValues) {
    EXPECT_EQ(view_.step1to4(), 1);
    EXPECT_EQ(view_.texts["txtExtractionHeight"], "10");
    EXPECT_EQ(view_.texts["txtExtractionHeight2"], "10");
    EXPECT_EQ(view_.texts["txtNumberOfLocations"], "1");
    EXPECT_EQ(view_.texts["cboNS"], "N");
    EXPECT_EQ(view_.texts["cboWE"], "W");
    EXPECT_EQ(view_.texts["cboTimeZone"], settings.DefaultTimeZone);
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #1 of 1");
    for (const char* control : {"cmdNext2", "cboTimeZone", "cmdPrevious3", "cmdNext3", "cmdNextLocation",
                                "txtLat", "cmdPROCESS", "txtOutputDirectory"})
        EXPECT_FALSE(enabled(control)) << control;
}

TEST_F(VentosWizard, StepOneWantsFiles) {
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext1_Click(); }), "Please select VENTOS.DAT File(s) for input.");
    EXPECT_TRUE(view_.marked.contains("lstVENTOSDATFiles"));
    EXPECT_EQ(view_.step1to4(), 1);
}

TEST_F(VentosWizard, AFileOfAnotherFormIsTold) {
    const std::string good = directory_.write("good.dat", ventosText());
    // Windows allows no quote in a name.
    const std::string name = onWindows ? "ba'd.dat" : "ba\"d.dat";
    const std::string bad = directory_.write(name, "no");
    for (const auto& files : {std::vector{bad}, {bad, good}, {good, bad}}) {
        view_.files = files;
        EXPECT_EQ(boxOf([this] { wizard_->cmdNext1_Click(); }, BoxAnswer::Ok, "ERROR:"),
                  "\"" + name +
                      "\" is not in the expected format:\r\rline 1 (file type): the file does not begin with "
                      "VENTOS.DAT");
        EXPECT_EQ(view_.step1to4(), 1);
        EXPECT_EQ(view_.texts["txtOutputDirectory"], withSeparator(directory_.path())) << "taken before";
    }
    view_.files = {directory_.path()};
    EXPECT_EQ(
        boxOf([this] { wizard_->cmdNext1_Click(); }, BoxAnswer::Ok, "ERROR:"),
        "\"" + FileNameOf(directory_.path()) + "\" is not in the expected format:\r\rPath/File access error");
}

TEST_F(VentosWizard, TheFirstFileGivesTheBeginAndTheLastTheEndAndTheProjection) {
    std::vector<std::string> asked;
    modInfoViewDLL.infoview = [&asked](const std::string& path, InputKind, InfoViewResult& r) {
        asked.push_back(path);
        const int n = path.back() - '0';
        r.first = {2000 + n, 1, 1, 0, 0};
        r.last = {2000 + n, 12, 31, 0, 0};
        r.IUTMZN = n;
        r.timeZone = "utc+0100";
    };
    view_.files = {"/a/f9", "/a/f1", "/a/f3"};
    wizard_->cmdNext1_Click();
    EXPECT_EQ(asked, (std::vector<std::string>{"/a/f9", "/a/f3"}));
    EXPECT_EQ(view_.beginShown, makeDate(2009, 1, 1)) << "files out of order are not sorted";
    EXPECT_EQ(view_.endShown, makeDate(2003, 12, 31));
    EXPECT_EQ(projection.IUTMZN, "3");
    EXPECT_EQ(timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(view_.zoneRow)), "UTC+0100");
    EXPECT_EQ(view_.step1to4(), 2);
    asked.clear();
    view_.files = {"/a/f5"};
    wizard_->cmdNext1_Click();
    EXPECT_EQ(asked, (std::vector<std::string>{"/a/f5", "/a/f5"})) << "a single file is read twice";
}

TEST_F(VentosWizard, AnUnknownZoneLeavesTheComboAndALibraryThatFailsLeavesThePeriod) {
    modInfoViewDLL.infoview = [](const std::string&, InputKind, InfoViewResult& r) {
        r.first = {2000, 1, 1, 0, 0};
        r.last = {2000, 12, 31, 0, 0};
        r.timeZone = "MST";
    };
    view_.files = {"/a/b"};
    view_.zoneRow = 7;
    wizard_->cmdNext1_Click();
    EXPECT_EQ(view_.zoneRow, 7);
    modInfoViewDLL.infoview = [](const std::string&, InputKind, InfoViewResult&) {
        throw RunTimeError(53, "File not found");
    };
    view_.beginShown = makeDate(1990, 1, 1);
    view_.endShown = makeDate(1990, 1, 2);
    wizard_->cmdNext1_Click();
    EXPECT_EQ(view_.step1to4(), 2);
    EXPECT_EQ(view_.beginShown, makeDate(1990, 1, 1));
    EXPECT_EQ(wizard_->DataStartTime, DateTime());
    view_.texts["cboTimeZone"] = "z";
    EXPECT_EQ(next2(), "Please select a spatial interpolation method from the pull-down menu.")
        << "no check against an unknown period";
}

TEST_F(VentosWizard, StepTwoChecksInItsOrder) {
    openFile(ventosText());
    view_.texts["cboTimeZone"] = view_.texts["cboSpatialInterpolationMethod"] = "";
    view_.texts["txtNumberOfLocations"] = "";
    view_.step = {};
    const DateTime begin = view_.beginShown;
    const DateTime end = view_.endShown;
    view_.endShown = begin;
    EXPECT_EQ(next2(), "The Ending Date/Time must be later than the Starting Date/Time.");
    for (const char* label : {"lblBeginDate", "lblBeginTime", "lblEndDate", "lblEndTime"})
        EXPECT_TRUE(view_.marked.contains(label)) << label;
    view_.endShown = end;
    EXPECT_EQ(next2(), "Please select a Base Time Zone from the pull-down menu.");
    EXPECT_EQ(view_.marked, (std::set<std::string>{"cboTimeZone"})) << "the labels are clean again";
    view_.texts["cboTimeZone"] = "z";
    EXPECT_EQ(next2(), "Please enter a valid time step.");
    EXPECT_TRUE(view_.marked.contains("Frame_TimeStep"));
    view_.step = {0, 0, 1};
    EXPECT_EQ(next2(), "Please enter the Number of Locations to be processed.");
    view_.texts["txtNumberOfLocations"] = "1";
    EXPECT_EQ(next2(), "Please select a spatial interpolation method from the pull-down menu.");
    EXPECT_TRUE(view_.marked.contains("cboSpatialInterpolationMethod"));
    view_.texts["cboSpatialInterpolationMethod"] = "BILINEAR";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(view_.projectionAsked, 1);
    EXPECT_EQ(view_.step1to4(), 2) << "the projection dialog was cancelled";
}

TEST_F(VentosWizard, APeriodBeyondTheDataIsAskedAndEitherAnswerEndsTheClick) {
    openFile(ventosText());
    const DateTime begin = view_.beginShown;
    const DateTime end = view_.endShown;
    view_.beginShown = addSeconds(begin, -1);
    view_.endShown = addSeconds(end, 1);
    const std::string early =
        "The selected Starting date/time precedes the starting date/time of the data.\r\rUse the Starting "
        "date/time of the data instead?";
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::No), early);
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(view_.marked, (std::set<std::string>{"lblBeginDate", "lblBeginTime"}));
    EXPECT_EQ(view_.beginShown, addSeconds(begin, -1));
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes), early);
    EXPECT_EQ(view_.beginShown, begin);
    EXPECT_TRUE(view_.marked.empty());
    EXPECT_EQ(view_.projectionAsked, 0);
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes),
              "The selected Ending date/time follows the ending date/time of the data.\r\rUse the Ending "
              "date/time of the data instead?");
    EXPECT_EQ(view_.endShown, end);
    EXPECT_EQ(view_.projectionAsked, 0);
    wizard_->cmdNext2_Click();
    EXPECT_EQ(view_.projectionAsked, 1) << "exactly the data's limits pass";
}

TEST_F(VentosWizard, AStepOfMoreThanSixteenBitsOverflows) {
    openFile(ventosText());
    view_.step = {9, 6, 7};
    wizard_->cmdNext2_Click();
    EXPECT_EQ(view_.projectionAsked, 1);
    view_.step = {9, 6, 8};
    EXPECT_RAISES(6, "Overflow", wizard_->cmdNext2_Click());
    view_.step = {10, 0, 0};
    EXPECT_RAISES(6, "Overflow", wizard_->cmdNext2_Click());
    EXPECT_EQ(view_.step1to4(), 2);
}

TEST_F(VentosWizard, TheOptionsSwitchTheNumberOfLocations) {
    openFile(ventosText());
    EXPECT_TRUE(enabled("txtNumberOfLocations"));
    wizard_->optByStation_Click();
    EXPECT_FALSE(enabled("txtNumberOfLocations"));
    view_.checkedOption = "optByStation";
    wizard_->cmdPrevious2_Click();
    EXPECT_EQ(view_.step1to4(), 1);
    wizard_->cmdNext1_Click();
    EXPECT_FALSE(enabled("txtNumberOfLocations"));
    view_.texts["txtNumberOfLocations"] = "";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(view_.step1to4(), 3) << "by station their number is not asked";
}

TEST_F(VentosWizard, ThreeLocationsAreWalkedForthAndBack) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "3";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(view_.step1to4(), 3);
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #1 of 3");
    EXPECT_TRUE(view_.visibleControls["Frame_XY"]);
    EXPECT_FALSE(view_.visibleControls["Frame_LL"]);
    EXPECT_FALSE(enabled("cmdPrevLocation"));
    EXPECT_TRUE(enabled("cmdNextLocation"));
    EXPECT_FALSE(enabled("cmdNext3"));
    fillLocation("1", "2", "a");
    view_.texts["txtExtractionHeight"] = "33";
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #2 of 3");
    EXPECT_EQ(view_.texts["txtXCoord"], "");
    EXPECT_EQ(view_.texts["txtFRQOutputFilename"], "");
    EXPECT_EQ(view_.texts["txtExtractionHeight"], "33") << "the height before is offered";
    EXPECT_TRUE(enabled("cmdPrevLocation"));
    EXPECT_FALSE(enabled("cmdNext3"));
    fillLocation("3", "4", "b");
    view_.texts["txtExtractionHeight"] = "44";
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #3 of 3");
    EXPECT_FALSE(enabled("cmdNextLocation"));
    EXPECT_TRUE(enabled("cmdNext3"));
    view_.texts["txtXCoord"] = "half";
    wizard_->cmdPrevLocation_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #2 of 3");
    EXPECT_EQ(view_.texts["txtXCoord"], "3");
    EXPECT_EQ(view_.texts["txtExtractionHeight"], "44");
    EXPECT_TRUE(enabled("cmdNextLocation"));
    EXPECT_FALSE(enabled("cmdNext3"));
    EXPECT_TRUE(enabled("cmdPrevLocation"));
    wizard_->cmdPrevLocation_Click();
    EXPECT_FALSE(enabled("cmdPrevLocation"));
    EXPECT_EQ(view_.texts["txtFRQOutputFilename"], "a");
    wizard_->cmdNextLocation_Click();
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(view_.texts["txtXCoord"], "half") << "saved unchecked on the way back";
}

TEST_F(VentosWizard, ALocationWantsItsFields) {
    openFile(ventosText());
    acceptProjection("");
    wizard_->cmdNext2_Click();
    fillLocation("", "", "");
    view_.texts["txtExtractionHeight"] = "";
    const auto next3 = [this] { return boxOf([this] { wizard_->cmdNext3_Click(); }); };
    EXPECT_EQ(next3(), "Please enter an X Coordinate (km) value.");
    view_.texts["txtXCoord"] = " ";
    EXPECT_EQ(next3(), "Please enter a Y Coordinate (km) value.");
    view_.texts["txtYCoord"] = "letters";
    EXPECT_EQ(next3(), "Please enter an Extraction Height (m) value.");
    view_.texts["txtExtractionHeight"] = "5";
    EXPECT_EQ(next3(), "Please enter a Filename for the Output FRQ file.");
    EXPECT_TRUE(view_.marked.contains("txtFRQOutputFilename"));
    view_.texts["txtFRQOutputFilename"] = "x";
    wizard_->cmdNext3_Click();
    EXPECT_EQ(view_.step1to4(), 4);
    projection.PMAP = "LL";
    wizard_->cmdPrevious4_Click();
    view_.texts["txtLat"] = view_.texts["txtLon"] = "";
    EXPECT_EQ(next3(), "Please enter a latitude.");
    view_.texts["txtLat"] = "1";
    EXPECT_EQ(next3(), "Please enter a longitude.");
}

TEST_F(VentosWizard, ALoweredNumberFallsBackToTheFirstLocation) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "3";
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    wizard_->cmdNextLocation_Click();
    fillLocation("3", "4", "b");
    wizard_->cmdPrevious3_Click();
    EXPECT_EQ(view_.step1to4(), 2);
    for (const char* button : {"cmdPrevLocation", "cmdNextLocation", "cmdNext3"})
        EXPECT_FALSE(enabled(button)) << button;
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #2 of 3") << "the same number goes on where it was";
    EXPECT_TRUE(enabled("cmdPrevLocation"));
    wizard_->cmdPrevious3_Click();
    view_.texts["txtNumberOfLocations"] = "2";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #1 of 2");
    EXPECT_EQ(view_.texts["txtFRQOutputFilename"], "a");
    EXPECT_EQ(wizard_->CurrentLocation, 1);
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(view_.texts["txtFRQOutputFilename"], "b") << "typed before the number was lowered";
    wizard_->cmdPrevLocation_Click();
    wizard_->cmdPrevious3_Click();
    view_.texts["txtNumberOfLocations"] = "5";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #1 of 5");
}

TEST_F(VentosWizard, NoLocationsAtFirstStoreNothingOfTheFields) {
    openFile(ventosText());
    acceptProjection("");
    ASSERT_NE(view_.texts["txtExtractionHeight"], "");
    view_.texts["txtNumberOfLocations"] = "0";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #1 of 0");
    EXPECT_EQ(view_.texts["txtExtractionHeight"], "");
}

TEST_F(VentosWizard, TheCaptionShowsThePositionAndDoesNotHoldIt) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "3";
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    wizard_->cmdNextLocation_Click();
    view_.texts["Frame_Step3"] = "in other words";
    wizard_->cmdPrevious3_Click();
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #2 of 3");
    fillLocation("3", "4", "b");
    wizard_->cmdNextLocation_Click();
    fillLocation("5", "6", "c");
    wizard_->cmdNext3_Click();
    view_.texts["Frame_Step3"] = "";
    wizard_->cmdPrevious4_Click();
    EXPECT_EQ(wizard_->CurrentLocation, 3);
    EXPECT_EQ(wizard_->NumberOfLocations, 3);
    EXPECT_TRUE(enabled("cmdPrevLocation"));
    EXPECT_FALSE(enabled("cmdNextLocation"));
}

TEST_F(VentosWizard, ALocationBeyondTheLastOneIsForgottenOnTheWayBack) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "1001";
    wizard_->cmdNext2_Click();
    for (int i = 1; i < 1000; ++i) {
        fillLocation("1", "2", "a");
        wizard_->cmdNextLocation_Click();
    }
    fillLocation("1", "2", "last");
    EXPECT_RAISES(9, "Subscript out of range", wizard_->cmdNextLocation_Click());
    wizard_->cmdPrevious3_Click();
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #1000 of 1001");
    EXPECT_EQ(view_.texts["txtFRQOutputFilename"], "last");
}

TEST_F(VentosWizard, StationsAndLocationsHaveFramesOfTheirOwn) {
    openFile(ventosText());
    view_.checkedOption = "optByStation";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "SELECT STATION(S) AND EXTRACTION HEIGHT TO PROCESS");
    EXPECT_TRUE(view_.visibleControls["Frame_Stations"]);
    EXPECT_TRUE(view_.visibleControls["Frame_ExtractionHeight"]);
    for (const char* control :
         {"Frame_Coordinates", "Frame_OutputFRQName", "cmdPrevLocation", "cmdNextLocation"})
        EXPECT_FALSE(view_.visibleControls[control]) << control;
    EXPECT_TRUE(enabled("cmdNext3"));
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext3_Click(); }), "Please select at least one station.");
    view_.selected = {true, false, false};
    view_.texts["txtExtractionHeight2"] = "";
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext3_Click(); }), "Please enter an extraction height in meters.");
    view_.texts["txtExtractionHeight2"] = "10";
    wizard_->cmdNext3_Click();
    EXPECT_EQ(view_.step1to4(), 4);
    EXPECT_FALSE(enabled("cmdNext3"));
    wizard_->cmdPrevious4_Click();
    EXPECT_EQ(view_.step1to4(), 3);
    EXPECT_TRUE(enabled("cmdNext3"));
    wizard_->cmdPrevious3_Click();
    view_.checkedOption = "optByLocation";
    acceptProjection("");
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #1 of 1");
    EXPECT_FALSE(view_.visibleControls["Frame_Stations"]);
    EXPECT_TRUE(view_.visibleControls["Frame_Coordinates"]);
}

TEST_F(VentosWizard, NoLocationAtAllGoesThrough) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "0";
    wizard_->cmdNext2_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #1 of 0");
    EXPECT_TRUE(enabled("cmdNext3"));
    EXPECT_FALSE(enabled("cmdNextLocation"));
    fillLocation("1", "2", "a");
    view_.texts["txtExtractionHeight"] = "10";
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(starter_.starts, 1);
    EXPECT_TRUE(plotted_.empty());
    EXPECT_NE(controlFile().find("! NTSFOUT = 0 !"), std::string::npos);
    EXPECT_EQ(controlFile().find("! TSFOUT ="), std::string::npos);
    EXPECT_EQ(status(), "Error has occurred.");
    directory_.write("out/" + runRoot() + "_tempoline.lst", "ERROR: 0 outputs are asked for\n");
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(view_.texts["lblReason"], "ERROR: 0 outputs are asked for");
    EXPECT_EQ(view_.statusTip, "ERROR: 0 outputs are asked for");
}

TEST_F(VentosWizard, TheArraysEndAtAThousandLocations) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "1001";
    wizard_->cmdNext2_Click();
    for (int i = 1; i < 1000; ++i) {
        fillLocation("1", "2", "a");
        wizard_->cmdNextLocation_Click();
    }
    EXPECT_EQ(caption(), "INPUT INFO FOR LOCATION #1000 of 1001");
    fillLocation("1", "2", "a");
    EXPECT_RAISES(9, "Subscript out of range", wizard_->cmdNextLocation_Click());
    EXPECT_RAISES(9, "Subscript out of range", wizard_->cmdNext3_Click());
}

TEST_F(VentosWizard, NumbersThatAreNoneAreRunTimeErrors) {
    openFile(ventosText());
    acceptProjection("");
    for (const char* number : {"1x", "99999999999"}) {
        view_.texts["txtNumberOfLocations"] = number;
        EXPECT_THROW(wizard_->cmdNext2_Click(), RunTimeError) << number;
        wizard_->cmdPrevious3_Click();
    }
}

/// From the first click to the control file, for each projection.
class ByProjection : public GridWizardTest,
                     public ::testing::WithParamInterface<std::array<const char*, 3>> {};

TEST_P(ByProjection, TheControlFileIsExact) {
    const auto [name, header, datum] = GetParam();
    openFile(ventosText(header));
    acceptProjection(datum);
    wizard_->cmdNext2_Click();
    const bool degrees = std::string(name) == "ll";
    EXPECT_EQ(view_.visibleControls["Frame_LL"], degrees);
    fillLocation(degrees ? "74.5" : "-3.5", degrees ? "41.25" : "1204.25", "My rose");
    wizard_->cmdNext3_Click();
    made_ = {"My rose"};
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(runRoot(), "VENTOS_wind20050307-20051231");
    EXPECT_EQ(controlFile(), expected(std::string("wizard_ventos_") + name + ".inp"));
    EXPECT_EQ(plotted_, (std::vector<std::string>{"My rose.frq"}));
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(view_.texts["cmdCancel"], "Exit");
    EXPECT_FALSE(view_.isBusy);
}

INSTANTIATE_TEST_SUITE_P(
    Ventos, ByProjection,
    ::testing::Values(std::array{"ll", "LL NAS-C NONE 0 0 0 0 0 0 0", "WGS-84"},
                      std::array{"utm", "UTM NAR-C n 18 0 0 0 0 0 0", ""},
                      std::array{"lcc", "LCC NWS-84 NONE 0 100.5 -20 40.5 -97.25 33 45", ""},
                      std::array{"ttm", "TTM WGS-84 NONE 0 100.5 -20 40.5 -97.25 0 0", ""},
                      std::array{"ps", "PS WGS-84 NONE 0 1 2 40.5 -97.25 60 0", ""},
                      std::array{"em", "EM WGS-84 NONE 0 1 2 40.5 -97.25 60 0", ""},
                      std::array{"laza", "LAZA WGS-84 NONE 0 100.5 -20 40.5 -97.25 1 2", ""}),
    [](const auto& row) { return std::string(row.param[0]); });

TEST_F(VentosWizard, TheControlFileOfStations) {
    openFile(ventosText());
    view_.checkedOption = "optByStation";
    view_.texts["txtTitleLine"] = "";
    wizard_->cmdNext2_Click();
    view_.selected = {false, true, true};
    view_.texts["txtExtractionHeight2"] = "12.5";
    wizard_->cmdNext3_Click();
    made_ = {"Burlington_VENTOS_20050307-20051231_12.5m"};
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(controlFile(), expected("wizard_ventos_stations.inp"));
    EXPECT_EQ(plotted_, (std::vector<std::string>{"Burlington_VENTOS_20050307-20051231_12.5m.frq"}));
    EXPECT_EQ(status(), "Finished") << "the last location's";
    made_ = {"Albany_VENTOS_20050307-20051231_12.5m"};
    std::filesystem::remove(directory_.file("out/Burlington_VENTOS_20050307-20051231_12.5m.frq"));
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(status(), "Error has occurred.");
    EXPECT_EQ(plotted_.size(), 2U);
}

TEST_F(VentosWizard, TheSpatialMethodsHaveTheirNumbers) {
    openFile(ventosText());
    acceptProjection("");
    for (const auto& [method, number] : {std::pair{"BILINEAR", "1"}, std::pair{"NEAREST GRID CELL", "2"}}) {
        view_.texts["cboSpatialInterpolationMethod"] = method;
        wizard_->cmdNext2_Click();
        fillLocation("1", "2", "a");
        wizard_->cmdNext3_Click();
        wizard_->cmdPROCESS_Click();
        EXPECT_NE(controlFile().find(std::string("! METSIM = ") + number + " !"), std::string::npos)
            << method;
        wizard_->cmdPrevious4_Click();
        wizard_->cmdPrevious3_Click();
    }
}

TEST_F(VentosWizard, TheFilesAreReadInTheOrderOfTheList) {
    const std::string first = directory_.write("z_first.dat", ventosText());
    const std::string second = directory_.write("a_second.dat", ventosText());
    openFile(ventosText());
    wizard_->cmdPrevious2_Click();
    view_.files = {first, second};
    wizard_->cmdNext1_Click();
    view_.texts["txtOutputDirectory"] = directory_.file("out/");
    acceptProjection("");
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(runRoot(), "VENTOS_z_first20050307-20051231");
    const std::string file = controlFile();
    EXPECT_NE(file.find("! NMETINP = 2 !"), std::string::npos);
    EXPECT_LT(file.find(first), file.find(second));
    EXPECT_NE(file.find(second), std::string::npos);
}

TEST_F(VentosWizard, OfSeveralZonesOfOneCodeTheLastIsShown) {
    openFile(ventosText());
    EXPECT_EQ(timeZones.gsTimeZoneLabels.at(static_cast<std::size_t>(view_.zoneRow)),
              "(UTC-05:00) Indiana (East)");
}

TEST_F(VentosWizard, ASecondFileThatIsRefusedLeavesTheBeginOfTheFirst) {
    openFile(ventosText());
    wizard_->cmdPrevious2_Click();
    view_.beginShown = view_.endShown = makeDate(1990, 1, 1);
    view_.files = {directory_.file("wind.dat"), directory_.write("other.dat", "nonsense\n")};
    const DateTime end = wizard_->DataEndTime;
    boxOf([this] { wizard_->cmdNext1_Click(); }, BoxAnswer::Ok, "ERROR:");
    EXPECT_EQ(view_.step1to4(), 1);
    EXPECT_EQ(view_.beginShown, wizard_->DataStartTime);
    EXPECT_EQ(view_.endShown, makeDate(1990, 1, 1));
    EXPECT_EQ(wizard_->DataEndTime, end);
}

TEST_F(VentosWizard, TheHeightOfAnotherLocationIsOfferedOnlyWhereNoneStands) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "2";
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    view_.texts["txtExtractionHeight"] = "33";
    wizard_->cmdNextLocation_Click();
    fillLocation("3", "4", "b");
    view_.texts["txtExtractionHeight"] = "44";
    wizard_->cmdPrevLocation_Click();
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(view_.texts["txtExtractionHeight"], "44");
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    const std::string file = controlFile();
    EXPECT_NE(file.find("! MET = 1, 2, 33,"), std::string::npos);
    EXPECT_NE(file.find("! MET = 3, 4, 44,"), std::string::npos);
}

TEST_F(VentosWizard, AllLocationsTakeTheDegreesOnShow) {
    openFile(ventosText("LL WGS-84 NONE 0 0 0 0 0 0 0"));
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "2";
    wizard_->cmdNext2_Click();
    fillLocation("10", "20", "a");
    wizard_->cmdNextLocation_Click();
    fillLocation(" 030.50", "40", "b");
    view_.texts["txtExtractionHeight"] = "20";
    view_.texts["cboNS"] = "S";
    view_.texts["cboWE"] = "E";
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    const std::string file = controlFile();
    EXPECT_NE(file.find("! TSFID = 1 !\r\n     ! LOCMET = A title !\r\n     ! MET = 30.5, -40, 10,"),
              std::string::npos);
    EXPECT_NE(file.find("! TSFID = 2 !\r\n     ! LOCMET = A title !\r\n     ! MET = 30.5, -40, 20,"),
              std::string::npos);
}

TEST_F(VentosWizard, LettersInDegreesAreToldAndNothingIsWritten) {
    openFile(ventosText("LL WGS-84 NONE 0 0 0 0 0 0 0"));
    acceptProjection("");
    wizard_->cmdNext2_Click();
    fillLocation("pasted", "20", "a");
    wizard_->cmdNext3_Click();
    EXPECT_EQ(boxOf([this] { wizard_->cmdPROCESS_Click(); }, BoxAnswer::Cancel, "ERROR:"),
              "The following error has occurred: \"Type mismatch\".  (Error Number = 13)");
    EXPECT_TRUE(std::filesystem::is_empty(directory_.file("out")));
    EXPECT_EQ(starter_.starts, 0);
    EXPECT_FALSE(view_.isBusy);
}

TEST_F(VentosWizard, TheOutputDirectoryMustBeThereAtTheRun) {
    openFile(ventosText());
    acceptProjection("");
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    wizard_->cmdNext3_Click();
    view_.texts["txtOutputDirectory"] = "";
    EXPECT_EQ(boxOf([this] { wizard_->cmdPROCESS_Click(); }), "Please select a Directory For Output.");
    for (const char* blank : {" ", " /"}) {
        view_.texts["txtOutputDirectory"] = blank;
        EXPECT_EQ(boxOf([this] { wizard_->cmdPROCESS_Click(); }),
                  "Selected Directory For Output does not exist.");
    }
    view_.texts["txtOutputDirectory"] = directory_.file("gone/");
    EXPECT_EQ(boxOf([this] { wizard_->cmdPROCESS_Click(); }),
              "Selected Directory For Output does not exist.");
    EXPECT_TRUE(view_.marked.contains("txtOutputDirectory"));
    EXPECT_EQ(starter_.starts, 0);
}

TEST_F(VentosWizard, AnOutputDirectoryThatVanishesBeforeTheRunIsToldAndTriedAgain) {
    openFile(ventosText());
    acceptProjection("");
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    wizard_->cmdNext3_Click();
    view_.onBusy = [this] { std::filesystem::remove_all(directory_.file("out")); };
    host_.onBox = [this] { std::filesystem::create_directory(directory_.file("out")); };
    EXPECT_EQ(boxOf([this] { wizard_->cmdPROCESS_Click(); }, BoxAnswer::Retry, "ERROR:"),
              "The following error has occurred: \"Path not found\".  (Error Number = 76)");
    EXPECT_EQ(starter_.starts, 1);
    host_.onBox = nullptr;
    EXPECT_EQ(boxOf([this] { wizard_->cmdPROCESS_Click(); }, BoxAnswer::Cancel, "ERROR:"),
              "The following error has occurred: \"Path not found\".  (Error Number = 76)");
    EXPECT_EQ(starter_.starts, 1);
    EXPECT_EQ(status(), "");
    EXPECT_FALSE(view_.isBusy);
}

TEST_F(VentosWizard, TheZonePickedIsKept) {
    openFile(ventosText());
    acceptProjection("");
    view_.texts["cboTimeZone"] = " (UTC+01:00) Berlin ";
    wizard_->cmdNext2_Click();
    fillLocation("1", "2", "a");
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC+01:00) Berlin");
    EXPECT_NE(directory_.read("Zephyrgraph.cfg").find("(UTC+01:00) Berlin"), std::string::npos);
}

TEST_F(VentosWizard, AZoneMovesNoPeriod) {
    openFile(ventosText());
    const DateTime begin = view_.beginShown;
    view_.zoneRow = 0;
    wizard_->cboTimeZone_Click();
    EXPECT_EQ(view_.beginShown, begin);
}

int rowOf(const char* key) {
    for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i)
        if (timeZones.gsTimeZoneKeys[i] == key) return static_cast<int>(i);
    return -1;
}

TEST_F(M3dWizard, TheMessagesThatDiffer) {
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext1_Click(); }), "Please select 3D.DAT File(s) for input.");
    openFile(m3dText());
    view_.texts["cboVertProfilingMethod"] = view_.texts["cboSpatialInterpolationMethod"] = "";
    EXPECT_EQ(next2(), "Please select a vertical profiling method from the pull-down menu.");
    EXPECT_TRUE(view_.marked.contains("cboVertProfilingMethod"));
    view_.texts["cboVertProfilingMethod"] = "DIRECT";
    EXPECT_EQ(next2(), "Please select a spatial interpolation method from the pull-down menu.");
}

TEST_F(M3dWizard, AnotherZoneShowsTheSameInstants) {
    openFile(m3dText());
    EXPECT_EQ(timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(view_.zoneRow)), "UTC+0000");
    const DateTime begin = view_.beginShown;
    const DateTime end = view_.endShown;
    EXPECT_EQ(begin, addSeconds(makeDate(2005, 3, 7), 6 * 3600));
    view_.zoneRow = rowOf("UTC-0700");
    wizard_->cboTimeZone_Click();
    EXPECT_EQ(view_.beginShown, addSeconds(begin, -7 * 3600)) << "across midnight";
    EXPECT_EQ(view_.endShown, addSeconds(end, -7 * 3600));
    EXPECT_EQ(wizard_->TimeZoneShiftHours, 7);
    view_.beginShown = addSeconds(view_.beginShown, 3600);
    view_.zoneRow = rowOf("UTC+0530");
    wizard_->cboTimeZone_Click();
    EXPECT_EQ(view_.beginShown,
              addSeconds(begin, 3600 + static_cast<std::int64_t>(-HoursFromTimeZone("UTC+0530") * 3600)));
    view_.zoneRow = rowOf("UTC+0000");
    wizard_->cboTimeZone_Click();
    EXPECT_EQ(view_.beginShown, addSeconds(begin, 3600));
    EXPECT_EQ(view_.endShown, end);
}

TEST_F(M3dWizard, TheDataLimitsMoveWithTheZone) {
    openFile(m3dText());
    view_.zoneRow = rowOf("UTC-0700");
    wizard_->cboTimeZone_Click();
    const DateTime begin = view_.beginShown;
    const DateTime end = view_.endShown;
    view_.beginShown = addSeconds(begin, -60);
    EXPECT_NE(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes).find("precedes"),
              std::string::npos);
    EXPECT_EQ(view_.beginShown, begin);
    view_.endShown = addSeconds(end, 60);
    EXPECT_NE(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes).find("follows"),
              std::string::npos);
    EXPECT_EQ(view_.endShown, end);
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes, ""),
              "Enter locations using fractional model grid cell indices (i,j)?");
}

TEST_F(M3dWizard, AFileOpenedAgainShowsItsOwnZoneAgain) {
    openFile(m3dText());
    view_.zoneRow = rowOf("UTC-0700");
    wizard_->cboTimeZone_Click();
    wizard_->cmdPrevious2_Click();
    wizard_->cmdNext1_Click();
    EXPECT_EQ(view_.beginShown, addSeconds(makeDate(2005, 3, 7), 6 * 3600));
    EXPECT_EQ(wizard_->TimeZoneShiftHours, 0);
    EXPECT_EQ(timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(view_.zoneRow)), "UTC+0000");
}

TEST_F(M3dWizard, DataOfAnUnknownZoneGoOnInTheOneOnShow) {
    openFile(m3dText());
    view_.zoneRow = rowOf("UTC-0700");
    wizard_->cboTimeZone_Click();
    const DateTime begin = view_.beginShown;
    const DateTime end = view_.endShown;
    wizard_->cmdPrevious2_Click();
    modInfoViewDLL.infoview = [](const std::string& path, InputKind kind, InfoViewResult& r) {
        readGridFileHeader(path, kind, r);
        r.timeZone = "MST";
    };
    wizard_->cmdNext1_Click();
    EXPECT_EQ(wizard_->TimeZoneShiftHours, 7);
    EXPECT_EQ(view_.beginShown, begin) << "in the zone that the combo says";
    EXPECT_EQ(view_.endShown, end);
    view_.zoneRow = -1;
    wizard_->cmdPrevious2_Click();
    wizard_->cmdNext1_Click();
    EXPECT_EQ(view_.beginShown, addSeconds(begin, 7 * 3600)) << "no zone at all: as the data have it";
}

TEST_F(M3dWizard, ANoAfterAYesGoesBackToTheProjection) {
    openFile(m3dText());
    acceptProjection("");
    view_.texts["txtNumberOfLocations"] = "2";
    boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes, "");
    EXPECT_TRUE(wizard_->UseCellCoordinates);
    wizard_->cmdPrevious3_Click();
    boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::No, "");
    EXPECT_FALSE(wizard_->UseCellCoordinates);
    EXPECT_FALSE(view_.visibleControls["Frame_IJ"]);
    EXPECT_TRUE(view_.visibleControls["Frame_XY"]);
    fillLocation("-3.5", "1204.25", "a");
    wizard_->cmdNextLocation_Click();
    fillLocation("8", "9", "b");
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    const std::string file = controlFile();
    for (const char* line : {"! MCELL = 0 !", "! PMAP = LCC !", "! MET = -3.5, 1204.25, 10,",
                             "! MET = 8, 9, 10,", "! DATUM = NWS-84 !", "! RLAT0 = 40.5N !"})
        EXPECT_NE(file.find(line), std::string::npos) << line;
}

TEST_F(M3dWizard, GridCellsSkipTheProjection) {
    openFile(m3dText());
    view_.texts["txtNumberOfLocations"] = "2";
    view_.texts["txtTitleLine"] = " ";
    EXPECT_EQ(boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes, ""),
              "Enter locations using fractional model grid cell indices (i,j)?");
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(view_.projectionAsked, 0);
    EXPECT_TRUE(view_.visibleControls["Frame_IJ"]);
    EXPECT_FALSE(view_.visibleControls["Frame_XY"]);
    EXPECT_FALSE(view_.visibleControls["Frame_LL"]);
    fillLocation("", "", "one");
    const auto next = [this] { return boxOf([this] { wizard_->cmdNextLocation_Click(); }); };
    EXPECT_EQ(next(), "Please enter a value for Grid Point i of (i,j).");
    view_.texts["txtGridPointI"] = "3.2";
    EXPECT_EQ(next(), "Please enter a value for Grid Point j of (i,j).");
    view_.texts["txtGridPointJ"] = "15.88";
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(caption(), "INPUT INFO FOR EXTRACTION SITE #2 of 2");
    EXPECT_EQ(view_.texts["txtGridPointI"], "");
    fillLocation("1", "1", "two");
    wizard_->cmdPrevLocation_Click();
    EXPECT_EQ(view_.texts["txtGridPointJ"], "15.88");
    wizard_->cmdNextLocation_Click();
    wizard_->cmdNext3_Click();
    made_ = {"one", "two"};
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(controlFile(), expected("wizard_m3d_cells.inp"));
    EXPECT_EQ(plotted_, (std::vector<std::string>{"one.frq", "two.frq"}));
}

TEST_F(M3dWizard, EachLocationKeepsItsDegrees) {
    openFile(m3dText());
    projection.PMAP = "LL";
    acceptProjection("WGS-84");
    view_.texts["txtNumberOfLocations"] = "2";
    boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::No, "");
    EXPECT_EQ(view_.projectionAsked, 1);
    EXPECT_TRUE(view_.visibleControls["Frame_LL"]);
    fillLocation("", "", "one");
    EXPECT_EQ(boxOf([this] { wizard_->cmdNextLocation_Click(); }), "Please enter a value for Latitude.");
    view_.texts["txtLat"] = "40";
    EXPECT_EQ(boxOf([this] { wizard_->cmdNextLocation_Click(); }), "Please enter a value for Longitude.");
    view_.texts["txtLon"] = "100";
    view_.texts["cboNS"] = "S";
    wizard_->cmdNextLocation_Click();
    EXPECT_EQ(view_.texts["cboNS"], "N") << "a fresh location begins as the form did";
    fillLocation("7.5", "41.0", "two");
    view_.texts["cboWE"] = "E";
    view_.texts["txtExtractionHeight"] = "80";
    wizard_->cmdNext3_Click();
    made_ = {"one"};
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(controlFile(), expected("wizard_m3d_ll.inp"));
    EXPECT_EQ(status(), "Error has occurred.");
}

TEST_F(M3dWizard, TheControlFileOfStations) {
    openFile(m3dText());
    view_.checkedOption = "optByStation";
    view_.texts["txtTitleLine"] = "";
    wizard_->cmdNext2_Click();
    view_.selected = {false, true, true};
    view_.texts["txtExtractionHeight2"] = "12.5";
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    EXPECT_EQ(controlFile(), expected("wizard_m3d_stations.inp"));
}

TEST_F(M3dWizard, TheAnswerAboutCellsHoldsForStationsToo) {
    openFile(m3dText());
    boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes, "");
    fillLocation("3.2", "15.88", "one");
    wizard_->cmdNext3_Click();
    wizard_->cmdPrevious4_Click();
    wizard_->cmdPrevious3_Click();
    view_.checkedOption = "optByStation";
    wizard_->cmdNext2_Click();
    view_.selected = {false, true, false};
    view_.texts["txtExtractionHeight2"] = "12.5";
    wizard_->cmdNext3_Click();
    wizard_->cmdPROCESS_Click();
    const std::string file = controlFile();
    for (const char* line : {"! MCELL = 1 !", "! PMAP = LL !", "! MET = 3.2, 15.88, 12.5, -1., -1., -1. !"})
        EXPECT_NE(file.find(line), std::string::npos) << line;
}

TEST_F(M3dWizard, TheProfilingMethodsHaveTheirNumbers) {
    const std::map<std::string, std::string> numbers = {
        {"STANDARD", "1"}, {"METSTAT", "2"}, {"NEUTRAL", "3"}, {"DIRECT", "4"}};
    openFile(m3dText());
    for (const auto& [method, number] : numbers) {
        view_.texts["cboVertProfilingMethod"] = method;
        boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes, "");
        fillLocation("1", "1", "a");
        wizard_->cmdNext3_Click();
        wizard_->cmdPROCESS_Click();
        EXPECT_NE(controlFile().find("! MPROF = " + number + " !"), std::string::npos) << method;
        wizard_->cmdPrevious4_Click();
        wizard_->cmdPrevious3_Click();
    }
}

TEST_F(M3dWizard, TheArraysEndAtThreeHundredLocations) {
    openFile(m3dText());
    view_.texts["txtNumberOfLocations"] = "301";
    boxOf([this] { wizard_->cmdNext2_Click(); }, BoxAnswer::Yes, "");
    for (int i = 1; i < 300; ++i) {
        fillLocation("1", "2", "a");
        wizard_->cmdNextLocation_Click();
    }
    fillLocation("1", "2", "a");
    EXPECT_RAISES(9, "Subscript out of range", wizard_->cmdNextLocation_Click());
}

}  // namespace
}  // namespace zg
