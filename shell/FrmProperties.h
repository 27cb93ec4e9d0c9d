#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <array>
#include <functional>

#include "base/Host.h"
#include "graph/model/Plot.h"
#include "platform/ColourBox.h"
#include "shell/CurveSample.h"

namespace zg {

/// Edits the look and the sweep of one curve.
class frmProperties : public QDialog {
    Q_OBJECT

 public:
    /// The graph must outlive the dialog. The function is called when the graph has new values.
    frmProperties(Host& host, GrapInfo& graph, std::function<void()> applied, QWidget* parent = nullptr);

    /// Hidden first: the text of a field that loses the focus meanwhile is still read.
    ~frmProperties() override { hide(); }

 private:
    QWidget* makePatterns();
    QGroupBox* makeLine();
    QGroupBox* makeMarker();
    QWidget* makeFontEffect();
    QWidget* makePictureEffect();
    QWidget* makeOptions();
    QLayout* makeButtons();
    void load();
    void followChanges();
    void checkWhenLeft();

    void changed();
    void enableFields();
    void drawSample();
    Series shownSeries() const;

    void checkAngle(std::size_t index);
    void checkStep();
    void checkDelay();
    void checkSize(std::size_t index);
    void takeSize(std::size_t index);
    void showStoredSize(std::size_t index);
    void checkAll();

    void cmdMfont_Click();
    void cmdMpicloc_Click(std::size_t index);
    void cmdApply_Click();
    void cmdOK_Click();

    Host& host_;
    GrapInfo& graph_;
    std::function<void()> applied_;
    MarkerFont font_;  ///< last result of the font dialog
    bool loading_ = true;

    QTabWidget* tbsProp;
    QRadioButton* optLnone;
    QRadioButton* optLcustom;
    QCheckBox* chkLconnect;
    QCheckBox* chkLshading;
    ColourBox* picLcolor;
    QPushButton* cmdLcolor;
    QComboBox* imcLstyle;
    QComboBox* imcLweight;
    QRadioButton* optMnone;
    QRadioButton* optMcustom;
    std::array<QRadioButton*, 2> optMtype;
    ColourBox* picMcolor;
    QPushButton* cmdMcolor;
    QPushButton* cmdMfont;
    QComboBox* cmbMstyle;
    QComboBox* cmbMalignh;
    QComboBox* cmbMalignv;
    QCheckBox* chkMautosize;
    QCheckBox* chkMtrans;
    std::array<QLineEdit*, 2> txtMsize;
    std::array<QLineEdit*, 2> txtMpicloc;
    std::array<QPushButton*, 2> cmdMpicloc;
    QWidget* fontEffect_;
    QWidget* pictureEffect_;
    CurveSample* picPattern;
    std::array<QLineEdit*, 2> txtAngle;
    QLineEdit* txtStep;
    QLineEdit* txtDelay;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QPushButton* cmdApply;
};

}  // namespace zg
