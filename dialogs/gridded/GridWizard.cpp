#include "dialogs/gridded/GridWizard.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "headers/Zones.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"

namespace zg {

const GridVariation ventosVariation = {.kind = InputKind::Ventos,
                                       .form = "frmProcessVENTOSDATFiles",
                                       .fileList = "lstVENTOSDATFiles",
                                       .title = "Generate Wind Rose Plots from VENTOS Data",
                                       .filesCaption = "INPUT VENTOS DATA &FILE(S)",
                                       .selectFiles = "Please select VENTOS.DAT File(s) for input.",
                                       .filter = "All Files (*.*)|*.*|DAT Files (*.dat)|*.dat",
                                       .tag = "_VENTOS_",
                                       .rootPrefix = "VENTOS_",
                                       .latitudeMissing = "Please enter a latitude.",
                                       .longitudeMissing = "Please enter a longitude.",
                                       .mostLocations = 1000,
                                       .siteWording = false,
                                       .isUtc = false,
                                       .asksProfiling = false,
                                       .offersCells = false,
                                       .oneCoordinatePair = true};

const GridVariation m3dVariation = {
    .kind = InputKind::M3d,
    .form = "frmProcess3DDATFiles",
    .fileList = "lst3DDATFiles",
    .title = "Generate Wind Rose Plots from MM5 or WRF 3D.DAT Data",
    .filesCaption = "INPUT 3D.DAT DATA &FILE(S)",
    .selectFiles = "Please select 3D.DAT File(s) for input.",
    .filter = "DAT Files (*.dat)|*.dat|M3D Files (*.m3d)|*.m3d|All Files (*.*)|*.*",
    .tag = "_3DDAT_",
    .rootPrefix = "3DDAT_",
    .latitudeMissing = "Please enter a value for Latitude.",
    .longitudeMissing = "Please enter a value for Longitude.",
    .mostLocations = 300,
    .siteWording = true,
    .isUtc = true,
    .asksProfiling = true,
    .offersCells = true,
    .oneCoordinatePair = false};

namespace {

constexpr const char* paragraph = "\r\r";

}  // namespace

GridWizard::GridWizard(const GridVariation& variation, GridView& view, Host& host, ProcessStarter& starter,
                       ProcessingWindow window)
    : variation_(variation),
      view_(view),
      host_(host),
      starter_(starter),
      window_(std::move(window)),
      locations_(variation.mostLocations) {}

void GridWizard::Form_Load() {
    view_.setText("txtExtractionHeight", "10");
    view_.setText("txtExtractionHeight2", "10");
    view_.setText("txtNumberOfLocations", "1");
    view_.setText("cboNS", "N");
    view_.setText("cboWE", "W");
    ReadCfgFile(settings.CfgFilePath);
    view_.setText("cboTimeZone", settings.DefaultTimeZone);
    showCaption(CaptionWord::Location);
    for (const int step : {2, 3, 4}) setStep(step, 1);
    disableMoves();
    view_.setVisible("Frame_Stations", false);
    view_.setVisible("Frame_ExtractionHeight", false);
    view_.setVisible("Frame_XY", false);
    if (variation_.offersCells) view_.setVisible("Frame_IJ", false);
}

bool GridWizard::refuse(const char* control, const std::string& text) {
    view_.mark(control, true);
    host_.showBox({text, "Error", BoxIcon::None, BoxButtons::Ok});
    view_.focus(control);
    return false;
}

bool GridWizard::check(bool passed, const char* control, const char* text) {
    if (!passed) return refuse(control, text);
    view_.mark(control, false);
    return true;
}

bool GridWizard::checkFilled(const char* box, const char* text) {
    return check(!view_.text(box).empty(), box, text);
}

bool GridWizard::readHeader(const std::string& path) {
    ReadGridHeader(path, variation_.kind);
    projection = nativeProjection();
    const InfoViewResult& header = modInfoViewDLL.result;
    if (header.errorFlag == 0) return true;
    host_.showBox(
        {"\"" + FileNameOf(path) + "\" is not in the expected format:" + paragraph + trim(header.errorText),
         "ERROR:", BoxIcon::None, BoxButtons::Ok});
    return false;
}

void GridWizard::cmdNext1_Click() {
    const std::vector<std::string> files = view_.rows(variation_.fileList);
    if (!check(!files.empty(), variation_.fileList, variation_.selectFiles)) return;
    view_.setText("txtOutputDirectory", withSeparator(DirOf(files.front())));
    if (!readHeader(files.front())) return;
    DataStartTime = modInfoViewDLL.HeaderStartTime;
    if (DataStartTime != DateTime()) view_.setBegin(DataStartTime);
    if (!readHeader(files.back())) return;
    DataEndTime = modInfoViewDLL.HeaderEndTime;
    if (DataEndTime != DateTime()) view_.setEnd(DataEndTime);
    showPeriodOfData();
    setStep(1, 2);
    if (byStation())
        optByStation_Click();
    else
        optByLocation_Click();
    view_.focus("cboTimeZone");
}

/// The pickers have the data's own times now. Convert them to the zone of the data, or keep the selected one
/// if the table does not contain the data's.
void GridWizard::showPeriodOfData() {
    TimeZoneShiftHours = 0;
    const std::string wanted = ucase(modInfoViewDLL.HeaderTimeZone);
    for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i)
        if (timeZones.gsTimeZoneKeys[i] == wanted) view_.setRow("cboTimeZone", static_cast<int>(i));
    if (view_.row("cboTimeZone") >= 0) cboTimeZone_Click();
}

void GridWizard::cmdPrevious2_Click() {
    setStep(2, 1);
    view_.focus("cmdNext1");
}

void GridWizard::optByStation_Click() { view_.setFieldEnabled("txtNumberOfLocations", false); }
void GridWizard::optByLocation_Click() { view_.setFieldEnabled("txtNumberOfLocations", true); }

float GridWizard::zoneHours() const {
    const int row = view_.row("cboTimeZone");
    if (row < 0) zg::raise(ErrorNumber::SubscriptOutOfRange);
    return HoursFromTimeZone(timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(row)));
}

/// The displayed period means the same instants as before.
void GridWizard::cboTimeZone_Click() {
    if (!variation_.isUtc || DataStartTime == DateTime() || DataEndTime == DateTime()) return;
    const float hours = zoneHours();
    const auto shift = static_cast<double>(TimeZoneShiftHours - hours);
    view_.setBegin(addHours(view_.begin(), shift));
    view_.setEnd(addHours(view_.end(), shift));
    TimeZoneShiftHours = hours;
}

bool GridWizard::checkOrder() {
    const bool passed = view_.begin() < view_.end();
    for (const char* label : {"lblBeginDate", "lblBeginTime", "lblEndDate", "lblEndTime"})
        view_.mark(label, !passed);
    if (!passed)
        host_.showBox({"The Ending Date/Time must be later than the Starting Date/Time.", "Error",
                       BoxIcon::None, BoxButtons::Ok});
    return passed;
}

/// Asks whether to take the data's own limit. The user continues with another click, so that the later checks
/// apply to what is then displayed.
bool GridWizard::useLimit(bool begin, DateTime limit) {
    const char* const date = begin ? "lblBeginDate" : "lblEndDate";
    const char* const time = begin ? "lblBeginTime" : "lblEndTime";
    const char* const which = begin ? "Starting" : "Ending";
    view_.mark(date, true);
    view_.mark(time, true);
    const std::string lower = begin ? "starting" : "ending";
    const BoxAnswer answer =
        host_.showBox({std::string("The selected ") + which + " date/time " +
                           (begin ? "precedes" : "follows") + " the " + lower + " date/time of the data." +
                           paragraph + "Use the " + which + " date/time of the data instead?",
                       "Error", BoxIcon::None, BoxButtons::YesNo});
    if (answer != BoxAnswer::Yes) return false;
    if (begin)
        view_.setBegin(limit);
    else
        view_.setEnd(limit);
    view_.mark(date, false);
    view_.mark(time, false);
    return false;
}

bool GridWizard::checkWithinData() {
    if (DataStartTime == DateTime() || DataEndTime == DateTime()) return true;
    const auto shown = [this](DateTime moment) {
        return addHours(moment, static_cast<double>(-TimeZoneShiftHours));
    };
    if (view_.begin() < shown(DataStartTime)) return useLimit(true, shown(DataStartTime));
    if (view_.end() > shown(DataEndTime)) return useLimit(false, shown(DataEndTime));
    return true;
}

/// In 16 bits, as in the run: a step of more than 9 hours, 6 minutes and 7 seconds raises 6.
std::int16_t GridWizard::stepSeconds() const {
    const TimeOfDay step = view_.timeStep();
    return toInt16(static_cast<double>(3600 * step.hour + 60 * step.minute + step.second));
}

bool GridWizard::checkTimeStep() {
    return check(stepSeconds() != 0, "Frame_TimeStep", "Please enter a valid time step.");
}

void GridWizard::cmdNext2_Click() {
    if (!checkOrder() ||
        !checkFilled("cboTimeZone", "Please select a Base Time Zone from the pull-down menu.") ||
        !checkWithinData() || !checkTimeStep())
        return;
    if (!byStation() &&
        !checkFilled("txtNumberOfLocations", "Please enter the Number of Locations to be processed."))
        return;
    if (variation_.asksProfiling &&
        !checkFilled("cboVertProfilingMethod",
                     "Please select a vertical profiling method from the pull-down menu."))
        return;
    if (!checkFilled("cboSpatialInterpolationMethod",
                     "Please select a spatial interpolation method from the pull-down menu."))
        return;
    if (byStation())
        toStations();
    else
        toLocations();
}

void GridWizard::toStations() {
    setStep(2, 3);
    showStationsCaption();
    showFramesOfMode();
    view_.setEnabled("cmdNext3", true);
    view_.focus("lstStations");
}

void GridWizard::toLocations() {
    if (variation_.offersCells) {
        const BoxAnswer answer =
            host_.showBox({"Enter locations using fractional model grid cell indices (i,j)?", "",
                           BoxIcon::None, BoxButtons::YesNo});
        UseCellCoordinates = answer == BoxAnswer::Yes;
        if (UseCellCoordinates) return Continue();
    }
    if (view_.askProjection()) Continue();
}

}  // namespace zg
