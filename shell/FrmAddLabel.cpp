#include "shell/FrmAddLabel.h"

#include <QVBoxLayout>

#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"

namespace zg {

namespace {

/// The three lines from the top.
std::array<std::string*, 3> labelLines() {
    return {&modPolarGraph.GraphTitle, &modPolarGraph.GraphSubTitle, &modPolarGraph.GraphCaption};
}

}  // namespace

frmAddLabel::frmAddLabel(Host& host, PolarGraph& graph, QWidget* parent)
    : ApplyDialog(host, "frmAddLabel", "Edit Label", parent), graph_(graph) {
    auto* layout = new QVBoxLayout(this);
    auto* prompt = new QLabel(QStringLiteral("&Up to three lines of labeling may be added below:"));
    layout->addWidget(prompt);
    const auto lines = labelLines();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        txtLabelLine[i] = named(new QLineEdit(shown(*lines[i])), QStringLiteral("txtLabelLine%1").arg(i + 1));
        txtLabelLine[i]->setAccessibleName(QStringLiteral("Line %1").arg(i + 1));
        layout->addWidget(txtLabelLine[i]);
    }
    prompt->setBuddy(txtLabelLine[0]);
    font_ = new FontChoice(host, modPolarGraph.LabelFont, factoryLabelFont(), "",
                           {"&Font...", "C&olor...", "&Default"});
    layout->addWidget(font_);
    auto* cmdClear = namedButton("C&lear", "cmdClear");
    connect(cmdClear, &QPushButton::clicked, this, [this] {
        for (QLineEdit* line : txtLabelLine) line->clear();
        txtLabelLine[0]->setFocus();
    });
    layout->addStretch();
    addButtons(*layout, cmdClear);
    resize(windowSize(*this, 75));
}

void frmAddLabel::apply() {
    const auto lines = labelLines();
    for (std::size_t i = 0; i < lines.size(); ++i) *lines[i] = typed(txtLabelLine[i]->text());
    modPolarGraph.LabelFont = font_->font();
    graph_.Refresh();
}

}  // namespace zg
