#pragma once

#include <QRadioButton>
#include <memory>

#include "batch/ReportWriter.h"
#include "batch/RunningDialog.h"

namespace zg {

/// Puts every bitmap of a directory into a slide show, a document, or both.
class frmCreateReport : public RunningDialog {
    Q_OBJECT

 public:
    /// If the caller gives no writer, the installed office program makes the reports.
    explicit frmCreateReport(Host& host, QWidget* parent = nullptr,
                             std::unique_ptr<ReportWriter> writer = nullptr);

 private:
    void layOut();
    void followFields();
    void cmdCreateReport_Click();
    bool checkFields();
    bool mayOverwrite(const char* extension);
    void create();
    void listPictures();
    void CreatePowerPointReport();
    void CreateWordReport();
    std::string reportPath(const char* extension) const;
    std::string pictureAt(std::size_t i) const;

    std::unique_ptr<ReportWriter> writer_;
    std::vector<std::string> ReportFileList_;
    QLineEdit* txtBMPDirectory;
    QPushButton* cmdBrowseBMPDirectory;
    QRadioButton* optPPT;
    QRadioButton* optDOC;
    QRadioButton* optBothPPTAndDOC;
    QLineEdit* txtWorkDirectory;
    QPushButton* cmdBrowseWorkDirectory;
    QLineEdit* txtSaveFilename;
    QPushButton* cmdCreateReport;
};

}  // namespace zg
