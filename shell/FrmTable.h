#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>

#include "base/Host.h"
#include "graph/control/SweepWatch.h"
#include "graph/model/Plot.h"

namespace zg {

class CurveTableModel;

/// The sampled points of one curve, to be read or copied into a spreadsheet.
class frmTable : public QDialog {
    Q_OBJECT

 public:
    /// Samples the curve at once and reports each row; a long one serves events through `serve`. Raises the
    /// errors of tabulateCurve.
    frmTable(Host& host, const GrapInfo& graph, const QPixmap& legend, const std::function<void()>& onRow,
             const SweepWatch::Serve& serve = {}, QWidget* parent = nullptr);

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

 private:
    QLayout* makeHead(const GrapInfo& graph, const QPixmap& legend);
    QLayout* makeButtons();
    void shareColumns();
    void cmdCopy_Click();
    void cmdSelectAll_Click();

    Host& host_;
    CurveTableModel* rows_;
    QGroupBox* fraTable;
    QLabel* picLegend;
    QLabel* lblCoefficient;
    QLabel* lblFunction;
    QTreeView* lvwData;
    QPushButton* cmdCopy;
    QPushButton* cmdSelectAll;
    QPushButton* cmdExit;
};

}  // namespace zg
