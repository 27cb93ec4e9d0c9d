#include "dialogs/point/FrmOpenAERMETFile.h"

#include "platform/FormParts.h"
#include "platform/ReadText.h"
#include "processing/KeyFilters.h"

namespace zg {

namespace {

bool isSurface(InputKind kind) { return kind == InputKind::AermSfc; }

}  // namespace

frmOpenAERMETFile::frmOpenAERMETFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                                     InputKind kind, QWidget* parent)
    : StationDialog(host, starter, std::move(window),
                    isSurface(kind) ? "frmOpenAERMETSFCFile" : "frmOpenAERMETPFLFile",
                    isSurface(kind) ? "Generate Wind Rose Plots from AERMET Surface Data"
                                    : "Generate Wind Rose Plots from AERMET Profile Data",
                    parent),
      kind_(kind) {
    txtStationID = enteredBox("txtStationID", KeyNumericInteger);
    build({"txtAERMETDataFile", isSurface(kind) ? "AERMET Surface Data &File:" : "AERMET Profile Data &File:",
           isSurface(kind) ? "AERMET Data Files (*.sfc) | *.sfc|All Files (*.*) | *.*; |"
                           : "AERMET Profile Data Files (*.pfl) | *.pfl|All Files (*.*) | *.*; |",
           "Please select an AERMET Met Data file.", "The selected AERMET Met Data file does not exist.",
           isSurface(kind) ? "_AERMETSFC_" : "_AERMETPFL_"},
          *txtStationID);
}

InputKind frmOpenAERMETFile::inputType() const { return kind_; }

std::string frmOpenAERMETFile::stationText() const { return readOrTyped(*txtStationID); }

/// Without an identifier it is "0", and nothing is looked up.
std::string frmOpenAERMETFile::stationToLookUp() {
    if (!txtStationID->text().isEmpty()) return stationText();
    txtStationID->setText(QStringLiteral("0"));
    return {};
}

bool frmOpenAERMETFile::checkPlace() {
    const bool hasX = !txtXLoc->text().isEmpty();
    const bool hasY = !txtYLoc->text().isEmpty();
    if (!check(hasX || !hasY, *txtXLoc, "Please enter an X location.")) return false;
    if (!check(hasY || !hasX, *txtYLoc, "Please enter a Y location.")) return false;
    fillEmptyPlace();
    return true;
}

void frmOpenAERMETFile::ReadAERMETFile(const std::string& path) {
    AermetPeriod period;
    readLargeFile([&](const std::function<void()>& progress) {
        HeaderSource source(path);
        period = readAermetPeriod(source, kind_, progress);
    });
    showPeriod(period.begin, period.end);
    if (isSurface(kind_)) showRead(*txtStationID, period.station);
}

}  // namespace zg
