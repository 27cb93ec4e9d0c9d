#pragma once

#include "dialogs/point/PointDialog.h"
#include "headers/UpHeader.h"

namespace zg {

/// Makes one rose per height from an upper-air sounding file. Its period is shown in the selected zone.
class frmOpenUPDATFile : public PointDialog {
    Q_OBJECT

 public:
    frmOpenUPDATFile(Host& host, ProcessStarter& starter, ProcessingWindow window, QWidget* parent = nullptr);

    void ReadUPDATHeader(const std::string& path);

 private:
    QGroupBox* makeInput();
    void cboTimeZone_Click();
    float comboHours() const;
    void showShifted(DateTime moment, QDateEdit& date, QTimeEdit& time, int minute, int second);
    const RunForm& runForm() const override { return RunForm::Heights; }
    bool checkFields() override;
    RunPlan plan() override;

    QLineEdit* txtUPDATFile;
    QPushButton* cmdBrowseFile;
    QLineEdit* txtStationID;
    QLineEdit* txtExtractionHeights;

    std::string msFileTimeZone;
    std::optional<DateTime> mdBeginInFile;
    std::optional<DateTime> mdEndInFile;
    float mfComboHours = 0;
};

}  // namespace zg
