#include "shell/FrmSelectWindRose.h"

#include <QLabel>
#include <QVBoxLayout>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "platform/ReasonLabel.h"
#include "shell/DialogButtons.h"

namespace zg {

namespace {

QString entryOf(int rose) {
    return QString::number(rose) + QStringLiteral(" - ") + shown(modPolarGraph.FrqRoseTitle(rose));
}

}  // namespace

frmSelectWindRose::frmSelectWindRose(Host& host, PolarGraph& graph, QWidget* parent)
    : QDialog(parent), graph_(graph) {
    nameForm(*this, "frmSelectWindRose", "Select Wind Rose to Plot");
    cboWindRoseNumber = named(new QComboBox, "cboWindRoseNumber");
    cboWindRoseNumber->setAccessibleName(windowTitle());
    cboWindRoseNumber->setMinimumContentsLength(28);
    // A title may be longer than the screen is wide.
    cboWindRoseNumber->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboWindRoseNumber->setMaxVisibleItems(20);
    auto* layout = new QVBoxLayout(this);
    auto* row = new QHBoxLayout;
    row->addWidget(labelFor("&Wind Rose:", cboWindRoseNumber));
    row->addWidget(cboWindRoseNumber, 1);
    layout->addLayout(row);
    const DialogButtons buttons = addOkCancel(*layout);
    cmdOk = buttons.ok;
    fillList();
    connect(cmdOk, &QPushButton::clicked, this, guarded(host, [this] { cmdOk_Click(); }));
    connect(buttons.cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSelectWindRose::fillList() {
    if (modPolarGraph.FrqRoseCount == 1) {
        cboWindRoseNumber->setPlaceholderText(modPolarGraph.FrqLoaded
                                                  ? QStringLiteral("The file has only one wind rose")
                                                  : QStringLiteral("No file has been opened"));
        DisableField(*cboWindRoseNumber);
        cmdOk->setEnabled(false);
        return;
    }
    for (int rose = 1; rose <= modPolarGraph.FrqRoseCount; ++rose) {
        const QString entry = entryOf(rose);
        cboWindRoseNumber->addItem(entry);
        cboWindRoseNumber->setItemData(rose - 1, plainTip(entry), Qt::ToolTipRole);
    }
    connect(cboWindRoseNumber, &QComboBox::currentTextChanged, this,
            [this](const QString& entry) { cboWindRoseNumber->setToolTip(plainTip(entry)); });
    cboWindRoseNumber->setCurrentText(entryOf(modPolarGraph.CurrentRose));
    cboWindRoseNumber->setToolTip(plainTip(cboWindRoseNumber->currentText()));
}

void frmSelectWindRose::cmdOk_Click() {
    const std::string entry = typed(cboWindRoseNumber->currentText());
    modPolarGraph.CurrentRose = toInt16(split(entry, "-")[0]);
    modPolarGraph.GraphCaption = modPolarGraph.FrqRoseCaption(modPolarGraph.CurrentRose);
    graph_.Refresh();
    accept();
}

}  // namespace zg
