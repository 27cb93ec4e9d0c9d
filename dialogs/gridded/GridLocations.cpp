// Step 3 of the wizard: which controls are active, and the values of the locations.

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "dialogs/gridded/GridWizard.h"

namespace zg {

namespace {

constexpr const char* stationsCaption = "SELECT STATION(S) AND EXTRACTION HEIGHT TO PROCESS";

using NameList = std::vector<const char*>;

/// Buttons and labels of a step, of which only the enabled flag changes. Not included are those that lead
/// from location to location and on to step 4: they depend on the current location.
NameList plainControls(int step) {
    switch (step) {
        case 1:
            return {"cmdBrowseDataFiles", "cmdMoveUP",       "cmdMoveDOWN",
                    "cmdRemoveSelection", "lblInstructions", "cmdNext1"};
        case 2:
            return {"lblBeginDate", "lblBeginTime",  "lblEndDate",    "lblEndTime",
                    "optByStation", "optByLocation", "cmdSetSeasons", "cmdSetWindSpeedClasses",
                    "cmdPrevious2", "cmdNext2"};
        case 3:
            return {"cmdSelectAll", "cmdDeselectAll", "cmdPrevious3"};
        default:
            return {"cmdBrowseDirectory", "cmdPrevious4", "cmdPROCESS"};
    }
}

NameList fieldControls(int step, const GridVariation& variation) {
    switch (step) {
        case 1:
            return {variation.fileList};
        case 2: {
            NameList names = {"cboTimeZone",
                              "DTPicker_BeginDate",
                              "DTPicker_BeginTime",
                              "DTPicker_EndDate",
                              "DTPicker_EndTime",
                              "DTPicker_TimeStep",
                              "cboSpatialInterpolationMethod",
                              "txtNumberOfLocations",
                              "txtTitleLine"};
            if (variation.asksProfiling) names.push_back("cboVertProfilingMethod");
            return names;
        }
        case 3: {
            NameList names = {"lstStations",
                              "txtExtractionHeight2",
                              "txtLat",
                              "cboNS",
                              "txtLon",
                              "cboWE",
                              "txtXCoord",
                              "txtYCoord",
                              "txtExtractionHeight",
                              "txtFRQOutputFilename"};
            if (variation.offersCells) {
                names.push_back("txtGridPointI");
                names.push_back("txtGridPointJ");
            }
            return names;
        }
        default:
            return {"txtOutputDirectory"};
    }
}

}  // namespace

void GridWizard::setStep(int from, int to) {
    view_.setStates(plainControls(from), fieldControls(from, variation_), plainControls(to),
                    fieldControls(to, variation_));
}

std::string& GridWizard::slot(std::vector<std::string>& texts, std::int32_t location) {
    if (location < 0 || static_cast<std::size_t>(location) >= texts.size())
        raise(ErrorNumber::SubscriptOutOfRange);
    return texts[static_cast<std::size_t>(location)];
}

bool GridWizard::byStation() const { return view_.checked("optByStation"); }

bool GridWizard::usesLatitudes() const { return !UseCellCoordinates && projection.PMAP == "LL"; }

std::string GridWizard::siteCaption() const {
    return "INPUT INFO FOR EXTRACTION SITE #" + std::to_string(CurrentLocation) + " of " +
           std::to_string(NumberOfLocations);
}

std::string GridWizard::locationCaption() const {
    if (variation_.siteWording) return siteCaption();
    return "INPUT INFO FOR LOCATION #" + std::to_string(CurrentLocation) + " of " +
           std::to_string(NumberOfLocations);
}

/// The caption stores the current location and the number of locations.
void GridWizard::parseCaption(std::int32_t& total) {
    const std::string caption = view_.text("Frame_Step3");
    const Pieces halves = split(caption, "of");
    total = toInt32(halves[1]);
    CurrentLocation = toInt32(split(halves[0], "#")[1]);
}

void GridWizard::showFramesOfMode() {
    const bool stations = byStation();
    view_.setVisible("Frame_Stations", stations);
    view_.setVisible("Frame_ExtractionHeight", stations);
    for (const char* name :
         {"Frame_Coordinates", "Frame_OutputFRQName", "cmdPrevLocation", "cmdNextLocation"})
        view_.setVisible(name, !stations);
    if (stations) return;
    if (variation_.offersCells) view_.setVisible("Frame_IJ", UseCellCoordinates);
    view_.setVisible("Frame_LL", usesLatitudes());
    view_.setVisible("Frame_XY", !UseCellCoordinates && !usesLatitudes());
}

void GridWizard::enableMoves() {
    view_.setEnabled("cmdPrevLocation", CurrentLocation > 1);
    view_.setEnabled("cmdNextLocation", CurrentLocation < NumberOfLocations);
    view_.setEnabled("cmdNext3", CurrentLocation >= NumberOfLocations);
}

void GridWizard::disableMoves() {
    for (const char* name : {"cmdNextLocation", "cmdPrevLocation", "cmdNext3"}) view_.setEnabled(name, false);
}

void GridWizard::Continue() {
    setStep(2, 3);
    showFramesOfMode();
    std::int32_t before = 0;
    if (view_.text("Frame_Step3") == stationsCaption) {
        CurrentLocation = NumberOfLocations = 1;
        view_.setText("Frame_Step3", locationCaption());
    }
    NumberOfLocations = toInt32(view_.text("txtNumberOfLocations"));
    parseCaption(before);
    if (before > NumberOfLocations) {
        CurrentLocation = 1;
        ShowLocation(CurrentLocation);
    } else {
        view_.setText("Frame_Step3", siteCaption());
    }
    enableMoves();
    view_.focus(UseCellCoordinates ? "txtGridPointI" : usesLatitudes() ? "txtLat" : "txtXCoord");
}

/// Only checks that there is a value; the processor judges it.
bool GridWizard::ValidateLocation() {
    bool passed;
    if (UseCellCoordinates)
        passed = checkFilled("txtGridPointI", "Please enter a value for Grid Point i of (i,j).") &&
                 checkFilled("txtGridPointJ", "Please enter a value for Grid Point j of (i,j).");
    else if (usesLatitudes())
        passed = checkFilled("txtLat", variation_.latitudeMissing) &&
                 checkFilled("txtLon", variation_.longitudeMissing);
    else
        passed = checkFilled("txtXCoord", "Please enter an X Coordinate (km) value.") &&
                 checkFilled("txtYCoord", "Please enter a Y Coordinate (km) value.");
    return passed && checkFilled("txtExtractionHeight", "Please enter an Extraction Height (m) value.") &&
           checkFilled("txtFRQOutputFilename", "Please enter a Filename for the Output FRQ file.");
}

void GridWizard::SaveLocation(std::int32_t location) {
    slot(LocationX, location) = view_.text("txtXCoord");
    slot(LocationY, location) = view_.text("txtYCoord");
    slot(LocationLat, location) = view_.text("txtLat");
    slot(LocationLon, location) = view_.text("txtLon");
    slot(LocationNS, location) = view_.text("cboNS");
    slot(LocationWE, location) = view_.text("cboWE");
    slot(LocationHeight, location) = view_.text("txtExtractionHeight");
    slot(LocationFRQName, location) = view_.text("txtFRQOutputFilename");
    if (!variation_.offersCells) return;
    slot(LocationI, location) = view_.text("txtGridPointI");
    slot(LocationJ, location) = view_.text("txtGridPointJ");
}

void GridWizard::ShowLocation(std::int32_t location) {
    slot(LocationX, location);  // raises before anything is shown
    view_.setText("Frame_Step3", locationCaption());
    view_.setText("txtXCoord", slot(LocationX, location));
    view_.setText("txtYCoord", slot(LocationY, location));
    view_.setText("txtLat", slot(LocationLat, location));
    view_.setText("txtLon", slot(LocationLon, location));
    view_.setText("cboNS", slot(LocationNS, location));
    view_.setText("cboWE", slot(LocationWE, location));
    view_.setText("txtExtractionHeight", slot(LocationHeight, location));
    view_.setText("txtFRQOutputFilename", slot(LocationFRQName, location));
    if (!variation_.offersCells) return;
    view_.setText("txtGridPointI", slot(LocationI, location));
    view_.setText("txtGridPointJ", slot(LocationJ, location));
}

void GridWizard::cmdNextLocation_Click() {
    if (!ValidateLocation()) return;
    const std::string height = view_.text("txtExtractionHeight");
    SaveLocation(CurrentLocation);
    if (CurrentLocation == NumberOfLocations - 1) {
        view_.setEnabled("cmdNextLocation", false);
        view_.setEnabled("cmdNext3", true);
    }
    ++CurrentLocation;
    ShowLocation(CurrentLocation);
    view_.setEnabled("cmdPrevLocation", true);
    if (view_.text("txtExtractionHeight").empty()) view_.setText("txtExtractionHeight", height);
    view_.focus(UseCellCoordinates ? "txtGridPointI" : usesLatitudes() ? "txtLat" : "txtXCoord");
}

void GridWizard::cmdPrevLocation_Click() {
    SaveLocation(CurrentLocation);
    view_.setEnabled("cmdNext3", false);
    view_.setEnabled("cmdNextLocation", true);
    --CurrentLocation;
    if (CurrentLocation == 1) view_.setEnabled("cmdPrevLocation", false);
    ShowLocation(CurrentLocation);
}

bool GridWizard::checkStations() {
    bool any = false;
    for (const bool selected : view_.selectedRows("lstStations")) any = any || selected;
    return check(any, "lstStations", "Please select at least one station.") &&
           checkFilled("txtExtractionHeight2", "Please enter an extraction height in meters.");
}

void GridWizard::cmdNext3_Click() {
    if (byStation() ? !checkStations() : !ValidateLocation()) return;
    if (!byStation()) SaveLocation(CurrentLocation);
    setStep(3, 4);
    disableMoves();
    view_.focus("cmdPROCESS");
}

void GridWizard::cmdPrevious3_Click() {
    setStep(3, 2);
    if (byStation())
        optByStation_Click();
    else
        optByLocation_Click();
    disableMoves();
    view_.focus("cmdNext2");
}

void GridWizard::cmdPrevious4_Click() {
    setStep(4, 3);
    showFramesOfMode();
    if (byStation()) {
        view_.setEnabled("cmdNext3", true);
    } else {
        parseCaption(NumberOfLocations);
        enableMoves();
    }
    view_.focus("cmdPrevious3");
}

}  // namespace zg
