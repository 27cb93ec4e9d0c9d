#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include "base/Host.h"
#include "graph/control/PolarGraph.h"

namespace zg {

/// Chooses the displayed rose of the file.
class frmSelectWindRose : public QDialog {
    Q_OBJECT

 public:
    /// Raises 9 for a file without roses.
    frmSelectWindRose(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void fillList();
    void cmdOk_Click();

    PolarGraph& graph_;
    QComboBox* cboWindRoseNumber;
    QPushButton* cmdOk;
};

}  // namespace zg
