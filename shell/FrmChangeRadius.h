#pragma once

#include <QComboBox>
#include <QDialog>

#include "base/Host.h"
#include "graph/control/PolarGraph.h"

namespace zg {

/// Sets the percentage of the outer ring. A row takes effect at once; Cancel restores the old one.
class frmChangeRadius : public QDialog {
    Q_OBJECT

 public:
    frmChangeRadius(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

    void reject() override;

 private:
    void cboRadiusPercent_Click();
    void cmdOk_Click();

    Host& host_;
    PolarGraph& graph_;
    QComboBox* cboRadiusPercent;
    int oldRow_ = -1;
    float oldRadius_;
};

}  // namespace zg
