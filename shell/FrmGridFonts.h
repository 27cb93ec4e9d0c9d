#pragma once

#include "graph/control/PolarGraph.h"
#include "platform/ColourBox.h"
#include "shell/ApplyDialog.h"
#include "shell/FontChoice.h"

namespace zg {

/// Edits the fonts of direction labels, percentages and legend, and the grid's colour.
class frmGridFonts : public ApplyDialog {
    Q_OBJECT

 public:
    frmGridFonts(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    void apply() override;
    QGroupBox* makeGridColour();
    void setGridColour(float colour);

    PolarGraph& graph_;
    FontRecord labelFont_;  ///< not edited here
    FontChoice* directions_;
    FontChoice* percents_;
    FontChoice* legend_;
    float gridColour_;
    ColourBox* picGridColor;
};

}  // namespace zg
