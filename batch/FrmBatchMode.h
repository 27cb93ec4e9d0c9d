#pragma once

#include <QPlainTextEdit>
#include <QRadioButton>

#include "batch/BatchRun.h"
#include "batch/RunningDialog.h"

namespace zg {

/// Asks for the settings of a batch export and runs it.
class frmBatchMode : public RunningDialog {
    Q_OBJECT

 public:
    frmBatchMode(Host& host, BatchHooks hooks, QWidget* parent = nullptr);

    /// Fills the fields in for the FRQ files of that directory, with a note, so that only BEGIN is left.
    /// Without another working directory the pictures go there too.
    void openDirectory(const std::string& directory, const std::string& note);

 private:
    void layOut();
    QLayout* notesPart();
    void followFields();
    void optSingleFRQFile_Click();
    void optDirectory_Click();
    void cmdBrowseSingleFRQFile_Click();
    void leftLimit();
    void cmdBeginBatchMode_Click();
    bool checkInput();
    bool checkWorkDirectory();
    bool checkLimit();
    void begin();

    BatchHooks hooks_;
    QRadioButton* optSingleFRQFile;
    QRadioButton* optDirectory;
    QLineEdit* txtSingleFRQFile;
    QPushButton* cmdBrowseSingleFRQFile;
    QLineEdit* txtDirectory;
    QPushButton* cmdBrowseDirectory;
    QLineEdit* txtRootFilename;
    QLineEdit* txtWorkDirectory;
    QPushButton* cmdBrowseWorkDirectory;
    QLineEdit* txtPercentValidLimit;
    QPushButton* cmdBeginBatchMode;
    QPlainTextEdit* txtNotes;
};

}  // namespace zg
