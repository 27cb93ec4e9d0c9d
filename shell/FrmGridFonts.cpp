#include "shell/FrmGridFonts.h"

#include <QVBoxLayout>

#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"

namespace zg {

namespace {

QGroupBox* framed(const char* title, QWidget* content) {
    auto* frame = new QGroupBox(QString::fromLatin1(title));
    (new QVBoxLayout(frame))->addWidget(content);
    return frame;
}

}  // namespace

frmGridFonts::frmGridFonts(Host& host, PolarGraph& graph, QWidget* parent)
    : ApplyDialog(host, "frmGridFonts", "Edit Grid Fonts and Colors", parent),
      graph_(graph),
      labelFont_(modPolarGraph.LabelFont),
      gridColour_(modPolarGraph.GridLineColor) {
    directions_ = new FontChoice(host, modPolarGraph.DirectionFont, factoryDirectionFont(), "_NSEW",
                                 {"&Font...", "C&olor...", "&Default"});
    percents_ = new FontChoice(host, modPolarGraph.PercentFont, factoryPercentFont(), "_Percents",
                               {"Fo&nt...", "Co&lor...", "D&efault"});
    legend_ = new FontChoice(host, modPolarGraph.LegendFont, factoryLegendFont(), "_LegTxt",
                             {"Fon&t...", "Colo&r...", "Defa&ult"});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(framed("Wind Direction Labels", directions_));
    layout->addWidget(framed("Percentage Labels", percents_));
    layout->addWidget(framed("Wind Class Legend Labels", legend_));
    layout->addWidget(makeGridColour());
    layout->addStretch();
    addButtons(*layout);
}

QGroupBox* frmGridFonts::makeGridColour() {
    auto* frame = new QGroupBox(QStringLiteral("&Grid Color"));
    picGridColor = named(new ColourBox(paintedColour(gridColour_)), "picGridColor");
    picGridColor->setAccessibleName(spoken(frame->title()));
    auto* cmdSelectColor = namedButton("Color...", "cmdSelectColor_GridLines");
    auto* cmdReset = namedButton("Default", "cmdResetToDefaults_GridLines");
    auto* row = new QHBoxLayout(frame);
    for (QPushButton* each : {cmdSelectColor, cmdReset, static_cast<QPushButton*>(picGridColor)}) {
        row->addWidget(each);
    }
    row->addStretch();
    picGridColor->asks(host_, cmdSelectColor,
                       [this](Colour colour) { setGridColour(static_cast<float>(colour)); });
    connect(cmdReset, &QPushButton::clicked, this, [this] { setGridColour(factoryGridLineColor); });
    return frame;
}

void frmGridFonts::setGridColour(float colour) {
    gridColour_ = colour;
    picGridColor->setColour(paintedColour(colour));
}

void frmGridFonts::apply() {
    modPolarGraph.LabelFont = labelFont_;
    modPolarGraph.DirectionFont = directions_->font();
    modPolarGraph.PercentFont = percents_->font();
    modPolarGraph.LegendFont = legend_->font();
    modPolarGraph.GridLineColor = gridColour_;
    graph_.Refresh();
}

}  // namespace zg
