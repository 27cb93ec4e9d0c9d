#pragma once

#include <QDialog>
#include <QPlainTextEdit>

#include "base/Host.h"
#include "graph/control/PolarGraph.h"

namespace zg {

/// Shows the comment of the plot and accepts a changed one.
class frmComment : public QDialog {
    Q_OBJECT

 public:
    frmComment(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void cmdOk_Click();

    PolarGraph& graph_;
    QPlainTextEdit* txtComment;
};

}  // namespace zg
