#include "dialogs/point/FrmOpenTSFDataFile.h"

#include "headers/TsfHeader.h"
#include "headers/Zones.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/Moments.h"
#include "platform/ReadText.h"

namespace zg {

frmOpenTSFDataFile::frmOpenTSFDataFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                                       QWidget* parent)
    : StationDialog(host, starter, std::move(window), "frmOpenTSFDataFile",
                    "Generate Wind Rose Plots from Time Series File (TSF)", parent) {
    txtStationID = named(new QLineEdit, "txtStationID");
    txtStationID->setToolTip(
        QStringLiteral("The result is named by the station in the file, whatever is typed here"));
    build({"txtTSFDataFile",
           "Time Series &File (TSF):", "TSF Data Files (*.tsf) | *.tsf|All Files (*.*) | *.*; |",
           "Please select a TSF Data file.", "The selected TSF Data file does not exist.", "_TSFMET_"},
          *txtStationID);
}

std::string frmOpenTSFDataFile::stationText() const { return readOrTyped(*txtStationID); }

void frmOpenTSFDataFile::ReadTSFHeader(const std::string& path) {
    HeaderSource source(path);
    const TsfHeader header = readTsfHeader(source);
    switch (header.outcome) {
        case TsfOutcome::NotTsf:
            refuse(*fileBox_, "The selected file is not a valid Time Series File (*.TSF).");
            return;
        case TsfOutcome::NotMeteorological:
            refuse(*fileBox_, "The selected file is not a valid meteorological Time Series File (*.TSF).");
            return;
        case TsfOutcome::Refused:
            return;
        case TsfOutcome::Read:
            break;
    }
    ClearInvalid(*fileBox_);
    stationInFile_ = header.station;
    showRead(*txtStationID, header.station);
    showPeriod(header.begin, header.end);
    showStep(header.stepSeconds, *DTPicker_TimeStep);
    int row = 0;
    for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i)
        if (timeZones.gsTimeZoneKeys[i] == header.timeZone) row = static_cast<int>(i);
    cboTimeZone->setCurrentIndex(row);
}

}  // namespace zg
