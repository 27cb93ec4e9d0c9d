#include "shell/ApplyDialog.h"

#include <QPushButton>

#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"

namespace zg {

ApplyDialog::ApplyDialog(Host& host, const char* name, const char* title, QWidget* parent)
    : QDialog(parent), host_(host) {
    nameForm(*this, name, title);
}

void ApplyDialog::addButtons(QBoxLayout& layout, QWidget* atLeft) {
    QPushButton* cmdOk = namedButton("OK", "cmdOk");
    QPushButton* cmdCancel = namedButton("&Cancel", "cmdCancel");
    QPushButton* cmdApply = namedButton("&Apply", "cmdApply");
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, guarded(host_, [this] { cmdOk_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdApply, &QPushButton::clicked, this, guarded(host_, [this] { apply(); }));
    auto* row = new QHBoxLayout;
    if (atLeft != nullptr) row->addWidget(atLeft);
    row->addStretch();
    for (QPushButton* each : {cmdOk, cmdCancel, cmdApply}) row->addWidget(each);
    layout.addLayout(row);
}

void ApplyDialog::cmdOk_Click() {
    apply();
    WriteCfgFile(settings.CfgFilePath);
    accept();
}

}  // namespace zg
