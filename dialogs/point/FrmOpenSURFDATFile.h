#pragma once

#include <QListWidget>

#include "dialogs/point/PointDialog.h"
#include "headers/SurfHeader.h"

namespace zg {

/// Makes one rose file per station from a SURF.DAT file.
class frmOpenSURFDATFile : public PointDialog {
    Q_OBJECT

 public:
    frmOpenSURFDATFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                       QWidget* parent = nullptr);

    /// Shows the contents of the file's header. Raises the errors of the reader.
    void ReadSURFDATHeader(const std::string& path);

 private:
    QGroupBox* makeInput();
    void showStations(const SurfHeader& header);
    void cmdBrowseFile_Click();
    void selectAll(bool selected);
    const RunForm& runForm() const override { return RunForm::Stations; }
    bool checkFields() override;
    RunPlan plan() override;

    QLineEdit* txtSURFDATFile;
    QPushButton* cmdBrowseFile;
    QListWidget* lstSURFDATStationIDs;
    QPushButton* cmdSelectAll;
    QPushButton* cmdDeselectAll;
    QLineEdit* txtAnemometerHeight;
};

}  // namespace zg
