#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <array>

#include "graph/control/PolarGraph.h"
#include "platform/ColourBox.h"
#include "shell/ApplyDialog.h"

namespace zg {

/// Edits the colours of the speed classes and the unit of the legend.
class frmOptionsLegend : public ApplyDialog {
    Q_OBJECT

 public:
    frmOptionsLegend(Host& host, PolarGraph& graph, QWidget* parent = nullptr);

 private:
    static constexpr std::size_t classCount = 6;

    void apply() override;
    QGroupBox* makeClass(std::size_t i);
    QGroupBox* makeUnits();
    void setColour(std::size_t i, float colour);
    void showRanges();

    PolarGraph& graph_;
    std::array<float, classCount> colours_;
    std::array<ColourBox*, classCount> picClassColor;
    std::array<QLabel*, classCount> minimum_;
    std::array<QLabel*, classCount> maximum_;
    QRadioButton* optMetersPerSecond;
    QRadioButton* optKnots;
};

}  // namespace zg
