#pragma once

#include "dialogs/point/StationDialog.h"

namespace zg {

/// Makes a rose from a time-series file that the processor wrote earlier.
class frmOpenTSFDataFile : public StationDialog {
    Q_OBJECT

 public:
    frmOpenTSFDataFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                       QWidget* parent = nullptr);

    void ReadTSFHeader(const std::string& path);

 private:
    void readFile(const std::string& path) override { ReadTSFHeader(path); }
    InputKind inputType() const override { return InputKind::Tsf; }
    std::string stationText() const override;
    std::string stationToLookUp() override { return stationInFile_; }
    bool hasHeightInName() const override { return false; }

    QLineEdit* txtStationID;
    std::string stationInFile_;
};

}  // namespace zg
