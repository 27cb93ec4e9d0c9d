#pragma once

#include <QListWidget>

#include "dialogs/point/PointDialog.h"
#include "dialogs/point/SurfHeader.h"

namespace zg {

/// Turns a SURF.DAT file into one rose file a station.
class frmOpenSURFDATFile : public PointDialog {
    Q_OBJECT

 public:
    frmOpenSURFDATFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                       QWidget* parent = nullptr);

    /// Shows what the header of the file says. Raises what the reader raises.
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
    std::vector<std::string> rows_;         ///< texts of the list
    std::vector<std::string> OutputNames_;  ///< by row; "" for one that is not selected
    std::vector<RunOutput> outputs_;
};

}  // namespace zg
