#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "base/Host.h"
#include "graph/control/PolarGraph.h"

namespace zg {

/// Asks for an aspect ratio above 0 and up to 5.
class frmAspect : public QDialog {
    Q_OBJECT

 public:
    frmAspect(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void cmdOk_Click();

    Host& host_;
    PolarGraph& graph_;
    QLabel* lblLabel;
    QLineEdit* txtAspect;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};

}  // namespace zg
