#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include "base/Host.h"
#include "graph/control/PolarGraph.h"

namespace zg {

/// Chooses the rose of the file that is on show.
class frmSelectWindRose : public QDialog {
    Q_OBJECT

 public:
    /// Raises 9 for a file that holds no rose.
    frmSelectWindRose(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void fillList();
    void cmdOk_Click();

    PolarGraph& graph_;
    QComboBox* cboWindRoseNumber;
    QPushButton* cmdOk;
};

}  // namespace zg
