// Step 3 of the wizard: which controls are active, and the values of the locations.

#include "base/Numbers.h"
#include "dialogs/gridded/GridWizard.h"

namespace zg {

namespace {

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

bool GridWizard::byStation() const { return view_.checked("optByStation"); }

bool GridWizard::usesLatitudes() const { return !UseCellCoordinates && projection.PMAP == "LL"; }

void GridWizard::showCaption(CaptionWord word) {
    const bool site = word == CaptionWord::Site || variation_.siteWording;
    onShow_ = {false, CurrentLocation, NumberOfLocations};
    view_.setText("Frame_Step3",
                  std::string("INPUT INFO FOR ") + (site ? "EXTRACTION SITE #" : "LOCATION #") +
                      std::to_string(CurrentLocation) + " of " + std::to_string(NumberOfLocations));
}

void GridWizard::showStationsCaption() {
    onShow_.stations = true;
    view_.setText("Frame_Step3", "SELECT STATION(S) AND EXTRACTION HEIGHT TO PROCESS");
}

void GridWizard::showFramesOfMode() {
    const bool stations = byStation();
    view_.setVisible("Frame_Stations", stations);
    view_.setVisible("Frame_ExtractionHeight", stations);
    for (const char* name :
         {"Frame_Coordinates", "Frame_OutputFRQName", "cmdPrevLocation", "cmdNextLocation"})
        view_.setVisible(name, !stations);
    if (variation_.offersCells) view_.setVisible("lblCellsOfStations", stations && UseCellCoordinates);
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
    const bool hasFields = !onShow_.stations && onShow_.total > 1;
    if (onShow_.stations) {
        CurrentLocation = NumberOfLocations = 1;
        showCaption(CaptionWord::Location);
    }
    NumberOfLocations = toInt32(view_.text("txtNumberOfLocations"));
    CurrentLocation = onShow_.location;
    if (onShow_.total > NumberOfLocations) {
        if (hasFields)
            SaveLocation(CurrentLocation);  // what was typed comes back when the number is raised again
        CurrentLocation = 1;
        ShowLocation(CurrentLocation);
    } else {
        showCaption(CaptionWord::Site);
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

void GridWizard::SaveLocation(std::int32_t number) {
    Location& location = locations_[number];
    for (const LocationField& field : locationFields(variation_.offersCells))
        location.*field.value = view_.text(field.control);
}

void GridWizard::ShowLocation(std::int32_t number) {
    const Location& location = locations_[number];  // raises before anything is shown
    showCaption(CaptionWord::Location);
    for (const LocationField& field : locationFields(variation_.offersCells))
        view_.setText(field.control, location.*field.value);
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
        // A run of stations in between has another number of them.
        CurrentLocation = onShow_.location;
        NumberOfLocations = onShow_.total;
        enableMoves();
    }
    view_.focus("cmdPrevious3");
}

}  // namespace zg
