#include "shell/FrmError.h"

#include <QGuiApplication>
#include <QVBoxLayout>

#include "platform/Captions.h"
#include "platform/FormParts.h"

namespace zg {

frmError::frmError(QWidget* parent) : QDialog(parent) {
    nameForm(*this, "frmError", "Error");
    lblDescr = named(new QLabel, "lblDescr");
    lblDescr->setWordWrap(true);
    lblDescr->setTextFormat(Qt::PlainText);
    lblDescr->setMinimumWidth(digitsWide(*lblDescr, 42));
    cmdOK = namedButton("OK", "cmdOK");
    cmdOK->setDefault(true);
    cmdDisable = namedButton("&Disable Error Checking", "cmdDisable");
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdDisable, &QPushButton::clicked, this, &frmError::cmdDisable_Click);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 14, 14, 12);
    layout->setSpacing(14);
    layout->addWidget(lblDescr);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdDisable);
    layout->addLayout(buttons);
}

void frmError::ShowError(const QString& description, const QString& modType) {
    gsModType = modType;
    if (modType == QLatin1String("RUN")) {
        cmdDisable->setText(QStringLiteral("Cannot Disable Error Checking When Trying to Run"));
        cmdDisable->setEnabled(false);
    }
    lblDescr->setText(description);
    const QCursor* screenPointer = QGuiApplication::overrideCursor();
    hourglass_ = screenPointer != nullptr && screenPointer->shape() == Qt::WaitCursor;
    if (screenPointer != nullptr) QGuiApplication::restoreOverrideCursor();
    exec();
}

void frmError::cmdDisable_Click() {
    if (hourglass_) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    reject();
}

}  // namespace zg
