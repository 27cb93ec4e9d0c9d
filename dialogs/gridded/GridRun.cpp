// Step 4 of the wizard: the values of the run, its control file, and the run itself.

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "dialogs/gridded/GridWizard.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "processing/Directories.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"

namespace zg {

namespace {

/// The coordinate as a plain number, negative for its letter; raises 13 for text that is not a number.
std::string signedNumber(const std::string& text, const std::string& letter, const char* negative) {
    const float value = toSingle(text);
    return singleText(letter == negative && value != 0 ? -value : value);
}

std::string profilingNumber(const std::string& method) {
    if (method == "STANDARD") return "1";
    if (method == "METSTAT") return "2";
    return method == "NEUTRAL" ? "3" : "4";
}

}  // namespace

void GridWizard::cmdPROCESS_Click() {
    const std::string directory = view_.text("txtOutputDirectory");
    if (!check(!directory.empty(), "txtOutputDirectory", "Please select a Directory For Output.") ||
        !check(isOutputDirectory(directory), "txtOutputDirectory",
               "Selected Directory For Output does not exist."))
        return;
    runProcessor(host_, starter_, RunForm::Locations, hooks());
}

RunHooks GridWizard::hooks() {
    RunHooks hooks;
    hooks.plan = [this] { return plan(); };
    hooks.showName = [](const std::string&) {};
    hooks.setStatus = [this](const std::string& text) { view_.setText("lblStatus", text); };
    hooks.setBusy = [this](bool busy) { view_.setBusy(busy); };
    hooks.load = window_.plotFrqFile;
    hooks.showExit = [this] { view_.setText("cmdCancel", "Exit"); };
    hooks.keepTimeZone = [this] {
        settings.DefaultTimeZone = trim(view_.text("cboTimeZone"));
        WriteCfgFile(settings.CfgFilePath);
    };
    hooks.abandoned = window_.ending;
    hooks.setReason = [this](const std::string& text) { view_.setReason(text); };
    hooks.setTip = [this](const std::string& text) { view_.setTipOfStatus(text); };
    hooks.chooseDirectory = [this] { return view_.chooseOtherDirectory(); };
    return hooks;
}

RunPlan GridWizard::plan() {
    ControlFile v = valuesOfRun();
    if (byStation())
        takeStations(v);
    else
        takeLocations(v);
    const std::string height = view_.text("txtExtractionHeight2");
    for (std::int32_t i = 1; i <= NumberOfLocations; ++i) {
        const Location& location = locations_[i];
        v.outputs.push_back({std::to_string(i), location.frqName, byStation() ? location.id : trim(v.title),
                             placeOf(location), byStation() ? height : location.height, byStation()});
    }
    return planOf(withSeparator(trim(view_.text("txtOutputDirectory"))), std::move(v));
}

ControlFile GridWizard::valuesOfRun() const {
    ControlFile v;
    v.type = variation_.kind;
    v.title = view_.text("txtTitleLine");
    v.inputFiles = view_.rows(variation_.fileList);
    setPeriod(v, view_.begin(), view_.end());
    v.ABTZ = timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(view_.row("cboTimeZone")));
    v.NSECDT = std::to_string(stepSeconds());
    v.METSIM = view_.text("cboSpatialInterpolationMethod") == "BILINEAR" ? "1" : "2";
    v.WSBIN = settings.WindClassString;
    v.seasonNames.assign(settings.SeasonNames.begin(), settings.SeasonNames.begin() + settings.SeasonCount);
    v.MSN = settings.MonthSeasonString;
    if (variation_.asksProfiling) v.MPROF = profilingNumber(view_.text("cboVertProfilingMethod"));
    // For stations the question about cells is not repeated: the last answer applies to them too.
    if (variation_.offersCells) v.MCELL = UseCellCoordinates ? "1" : "0";
    v.base = variation_.rootPrefix + fileBaseOf(v.inputFiles.at(0)) + periodInName(v);
    return v;
}

/// The selected rows become the locations; all use the datum of the table's first row.
void GridWizard::takeStations(ControlFile& v) {
    const std::vector<bool> selected = view_.selectedRows("lstStations");
    const std::string height = trim(view_.text("txtExtractionHeight2"));
    NumberOfLocations = 0;
    const std::string ending = variation_.tag + periodInName(v) + "_" + height + "m";
    for (std::size_t row = 0; row < selected.size(); ++row) {
        if (!selected[row]) continue;
        Location& location = locations_[++NumberOfLocations];
        location.x = stations.gsStationCol8.at(row);
        location.y = stations.gsStationCol7.at(row);
        location.id = stations.gsStationCol0.at(row);
        location.frqName = trim(location.id).append(ending);
    }
    v.projection.PMAP = "LL";
    v.projection.DATUM = stations.gsStationCol9.at(0);
}

void GridWizard::takeLocations(ControlFile& v) {
    if (usesLatitudes() && variation_.oneCoordinatePair) takeCoordinatesOnShow();
    v.projection = projection;
    if (UseCellCoordinates) v.projection.PMAP = "NONE";
}

/// Every location uses the coordinates on display; heights and names remain separate.
void GridWizard::takeCoordinatesOnShow() {
    const std::string x = signedNumber(view_.text("txtLon"), view_.text("cboWE"), "W");
    const std::string y = signedNumber(view_.text("txtLat"), view_.text("cboNS"), "S");
    for (std::int32_t i = 1; i <= NumberOfLocations; ++i) {
        locations_[i].x = x;
        locations_[i].y = y;
    }
}

std::string GridWizard::placeOf(const Location& location) const {
    if (UseCellCoordinates) return location.i + ", " + location.j;
    if (byStation() || !usesLatitudes() || variation_.oneCoordinatePair)
        return location.x + ", " + location.y;
    const std::string west = location.we == "W" ? "-" : "";
    const std::string south = location.ns == "S" ? "-" : "";
    return west + location.lon + ", " + south + location.lat;
}

}  // namespace zg
