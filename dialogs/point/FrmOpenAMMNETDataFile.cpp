#include "dialogs/point/FrmOpenAMMNETDataFile.h"

#include <utility>

#include "base/Text.h"
#include "headers/MonitorHeader.h"
#include "headers/Stations.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/Moments.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"

namespace zg {

frmOpenAMMNETDataFile::frmOpenAMMNETDataFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                                             QWidget* parent)
    : StationDialog(host, starter, std::move(window), "frmOpenAMMNETDataFile",
                    "  Generate Wind Rose Plots from Monitor Meteorological Data", parent) {
    cboStationID = named(new QComboBox, "cboStationID");
    cboStationID->setEditable(true);
    cboStationID->setInsertPolicy(QComboBox::NoInsert);
    cboStationID->setCompleter(nullptr);  // it would change a typed A to A1
    build({"txtAMMNETDataFile", "Monitor Meteorological Data &File:",
           "AMMNET Met Data Files (*.csv) | *.csv|All Files (*.*) | *.*; |",
           "Please select an AMMNET Met Data file.", "The selected AMMNET Met Data file does not exist.",
           "_AMMNETW_"},
          *cboStationID);
    connect(cboStationID, &QComboBox::activated, this, guarded(host_, [this] { cboStationID_Click(); }));
}

std::string frmOpenAMMNETDataFile::stationText() const { return readOrTyped(*cboStationID); }

void frmOpenAMMNETDataFile::ReadMonitorHeader(const std::string& path) {
    MonitorHeader header;
    bool isFirst = true;
    const auto add = [&](const std::string& station) {
        if (std::exchange(isFirst, false)) cboStationID->clear();
        addRead(*cboStationID, station);
    };
    try {
        readLargeFile([&](const std::function<void()>& progress) {
            HeaderSource source(path);
            header = readMonitorHeader(source, progress, add);
        });
    } catch (...) {
        // The file now named in the box must not run with the station and the period of another.
        if (isFirst) cboStationID->clear();
        showToday();
        throw;
    }
    if (!header.isMonitor) {
        refuse(*fileBox_, "The selected air quality data file is not in the expected format.");
        return;
    }
    ClearInvalid(*fileBox_);
    cboStationID->setCurrentIndex(0);
    showPeriod(header.begin, header.end);
    showStep(60 * header.averagingMinutes, *DTPicker_TimeStep);
    cboStationID_Click();
}

/// Sets the station's place from the table of stations, with matching letter case; without an entry the place
/// is unchanged.
void frmOpenAMMNETDataFile::cboStationID_Click() {
    const std::string station = trim(stationText());
    if (station.empty()) return;
    for (std::size_t i = 0; i < stations.gsStationCol1.size(); ++i) {
        if (trim(stations.gsStationCol1[i]) != station) continue;
        txtXLoc->setText(shown(stations.gsStationCol2[i]));
        txtYLoc->setText(shown(stations.gsStationCol3[i]));
        return;
    }
}

}  // namespace zg
