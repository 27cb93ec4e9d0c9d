#pragma once

#include <QLineEdit>
#include <array>

#include "graph/control/PolarGraph.h"
#include "shell/ApplyDialog.h"
#include "shell/FontChoice.h"

namespace zg {

/// Edits the three title lines and their font.
class frmAddLabel : public ApplyDialog {
    Q_OBJECT

 public:
    frmAddLabel(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void apply() override;

    PolarGraph& graph_;
    std::array<QLineEdit*, 3> txtLabelLine;
    FontChoice* font_;
};

}  // namespace zg
