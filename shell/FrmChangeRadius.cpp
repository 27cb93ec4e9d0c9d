#include "shell/FrmChangeRadius.h"

#include <QLabel>
#include <QVBoxLayout>

#include "base/Numbers.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/DialogButtons.h"

namespace zg {

frmChangeRadius::frmChangeRadius(Host& host, PolarGraph& graph, QWidget* parent)
    : QDialog(parent), host_(host), graph_(graph), oldRadius_(graph.Polar().Radius) {
    nameForm(*this, "frmChangeRadius", "Change Radius");
    cboRadiusPercent = named(new QComboBox, "cboRadiusPercent");
    for (int percent = 5; percent <= 100; percent += 5)
        cboRadiusPercent->addItem(QString::number(percent) + QLatin1Char('%'));
    const double percent = static_cast<double>(oldRadius_) * percentPerUnit;
    oldRow_ = cboRadiusPercent->findText(shown(doubleText(percent)) + QLatin1Char('%'));
    cboRadiusPercent->setCurrentIndex(oldRow_);
    auto* row = new QHBoxLayout;
    row->addWidget(labelFor("&Radius of the outer ring:", cboRadiusPercent));
    row->addWidget(cboRadiusPercent, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    const DialogButtons buttons = addOkCancel(*layout);
    connect(cboRadiusPercent, &QComboBox::currentIndexChanged, this,
            guarded(host_, [this] { cboRadiusPercent_Click(); }));
    connect(buttons.ok, &QPushButton::clicked, this, guarded(host_, [this] { cmdOk_Click(); }));
    connect(buttons.cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmChangeRadius::cboRadiusPercent_Click() {
    // A radius without a row is restored by its value.
    const bool ofARow = cboRadiusPercent->currentIndex() >= 0;
    graph_.Polar().Radius =
        ofARow ? toSingle(val(typed(cboRadiusPercent->currentText())) / percentPerUnit) : oldRadius_;
    graph_.Refresh();
}

void frmChangeRadius::cmdOk_Click() {
    settings.RadiusText = typed(cboRadiusPercent->currentText());
    WriteCfgFile(settings.CfgFilePath);
    accept();
}

void frmChangeRadius::reject() {
    cboRadiusPercent->setCurrentIndex(oldRow_);
    QDialog::reject();
}

}  // namespace zg
