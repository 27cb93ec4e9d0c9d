#pragma once

#include "dialogs/point/StationDialog.h"
#include "headers/AermetPeriod.h"

namespace zg {

/// Makes a rose from an AERMET surface or profile file: frmOpenAERMETSFCFile and frmOpenAERMETPFLFile.
class frmOpenAERMETFile : public StationDialog {
    Q_OBJECT

 public:
    frmOpenAERMETFile(Host& host, ProcessStarter& starter, ProcessingWindow window, InputKind kind,
                      QWidget* parent = nullptr);

    void ReadAERMETFile(const std::string& path);

 private:
    void readFile(const std::string& path) override { ReadAERMETFile(path); }
    InputKind inputType() const override;
    std::string stationText() const override;
    std::string stationToLookUp() override;
    bool checkPlace() override;

    InputKind kind_;
    QLineEdit* txtStationID;
};

}  // namespace zg
