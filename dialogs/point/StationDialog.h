#pragma once

#include "dialogs/point/PointDialog.h"

namespace zg {

/// The dialogs whose input becomes one rose: they have a station, its place and a wind height.
class StationDialog : public PointDialog {
    Q_OBJECT

 public:
    using PointDialog::PointDialog;

 protected:
    /// What the messages call the input, and its name in file names, such as "_AERMETSFC_".
    struct Words {
        const char* fileBox;  ///< objectName
        const char* caption;
        const char* filter;
        const char* selectFile;
        const char* fileMissing;
        const char* tag;
    };

    /// Lays the dialog out around a control for the station.
    void build(const Words& words, QWidget& station);

    virtual void readFile(const std::string& path) = 0;
    virtual InputKind inputType() const = 0;
    virtual std::string stationText() const = 0;
    /// The text by which the station's name is looked up; "" for no look-up.
    virtual std::string stationToLookUp() { return stationText(); }
    virtual bool checksTimeStep() const { return false; }
    /// Checks the station's place; if both fields are empty they become "0".
    virtual bool checkPlace();
    virtual bool hasHeightInName() const { return true; }

    std::string inputPath() const;
    void fillEmptyPlace();

    Words words_{};
    QLineEdit* fileBox_ = nullptr;
    QPushButton* cmdBrowseFile = nullptr;
    QLineEdit* txtXLoc = nullptr;
    QLineEdit* txtYLoc = nullptr;
    QLineEdit* txtAnemometerHeight = nullptr;

 private:
    QGroupBox* makeInput(QWidget& station);
    const RunForm& runForm() const override { return RunForm::Single; }
    bool checkFields() override;
    RunPlan plan() override;
};

}  // namespace zg
