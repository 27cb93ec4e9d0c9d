#pragma once

#include "dialogs/point/StationDialog.h"

namespace zg {

/// Makes a rose for one station of a comma-separated monitor file.
class frmOpenAMMNETDataFile : public StationDialog {
    Q_OBJECT

 public:
    frmOpenAMMNETDataFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                          QWidget* parent = nullptr);

    void ReadMonitorHeader(const std::string& path);

 private:
    void readFile(const std::string& path) override { ReadMonitorHeader(path); }
    InputKind inputType() const override { return InputKind::MonitorW; }
    std::string stationText() const override;
    bool checksTimeStep() const override { return true; }
    void cboStationID_Click();

    QComboBox* cboStationID;
};

}  // namespace zg
