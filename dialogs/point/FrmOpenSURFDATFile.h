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
    bool checkFields();
    void cmdView_Click();
    void readValues();
    std::string rowText(int row) const { return rows_.at(static_cast<std::size_t>(row)); }

    QLineEdit* txtSURFDATFile;
    QPushButton* cmdBrowseFile;
    QListWidget* lstSURFDATStationIDs;
    QPushButton* cmdSelectAll;
    QPushButton* cmdDeselectAll;
    QLineEdit* txtAnemometerHeight;

    // Of a run:
    ControlFile values_;
    std::vector<std::string> rows_;         ///< texts in the list
    std::vector<std::string> OutputNames_;  ///< by row; "" if it is not selected
    std::vector<RunOutput> outputs_;
};

}  // namespace zg
