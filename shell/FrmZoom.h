#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "base/Host.h"
#include "graph/control/PolarGraph.h"

namespace zg {

/// Asks for a zoom of 20 to 500 percent.
class frmZoom : public QDialog {
    Q_OBJECT

 public:
    frmZoom(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void cmdOk_Click();

    Host& host_;
    PolarGraph& graph_;
    QLabel* lblLabel;
    QComboBox* cmbZoom;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};

}  // namespace zg
