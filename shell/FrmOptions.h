#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>
#include <memory>

#include "platform/ColourBox.h"
#include "platform/PolarGraphWidget.h"
#include "shell/ApplyDialog.h"

namespace zg {

/// Edits grid, origin, colours and background on a preview, and applies them to the plot. No menu entry opens
/// it.
class frmOptions : public ApplyDialog {
    Q_OBJECT

 public:
    frmOptions(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

    /// Hidden first: the text of a field that loses the focus meanwhile is still read.
    ~frmOptions() override { hide(); }

 private:
    void apply() override;
    QWidget* makeDetails();
    QWidget* makeMisc();
    QWidget* makeBackground();
    QLayout* colourRow(const char* caption, const char* name, Colour Polar::*colour);
    PolarGraph& preview() { return pgPreview->graph(); }
    void showDetails();
    void showFields();
    void readUnit();
    void readRadius();
    void readOrigin();
    void cmdBitmap_Click();
    void cmdDefault_Click();
    void keepBackgroundPicture();

    PolarGraph& graph_;
    ModPolarGraph previewTables_;
    std::unique_ptr<PolarGraphWidget> pgPreview;
    QTabWidget* tbsOption;
    QLineEdit* txtUnit;
    QLineEdit* txtRadius;
    QLineEdit* txtDiameter;
    QLineEdit* txtCircumference;
    QLineEdit* txtArea;
    QLineEdit* txtUnitIn;
    QLineEdit* txtRadiusIn;
    QCheckBox* chkAuto;
    QLineEdit* txtCenterX;
    QLineEdit* txtCenterY;
    QButtonGroup* optBmp;
    ColourBox* picBkColor;
    std::vector<std::pair<ColourBox*, Colour Polar::*>> colours_;
};

}  // namespace zg
