#include "batch/RunningDialog.h"

#include "base/AtEnd.h"
#include "platform/DirectoryBox.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "platform/ReasonLabel.h"
#include "processing/Wait.h"

namespace zg {

RunningDialog::RunningDialog(Host& host, const char* name, const char* title, QWidget* parent)
    : QDialog(parent),
      host_(host),
      lblStatus(named(new QLabel, "lblStatus")),
      cmdCancel(namedButton("Cancel", "cmdCancel")) {
    nameForm(*this, name, title);
    lblStatus->setTextFormat(Qt::PlainText);
    wrapWithin(*lblStatus);
    lblStatus->setMinimumHeight(2 * lblStatus->fontMetrics().lineSpacing());
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void RunningDialog::reject() {
    if (!running_) QDialog::reject();
}

void RunningDialog::run(const std::function<void()>& work) {
    if (running_) return;
    const AtEnd idle([this] { running_ = false; });
    running_ = true;
    const QString before = lblStatus->text();
    try {
        work();
    } catch (...) {
        lblStatus->setText(before);
        showError(host_, std::current_exception());
    }
}

void RunningDialog::refuse(QWidget& field, const char* text) {
    lblStatus->setText(QString::fromLatin1(text));
    lblStatus->setToolTip({});
    MarkInvalid(field);
}

void RunningDialog::clearMark(QWidget& field, bool filled) {
    if (!clearFilledMark(field, filled)) return;
    lblStatus->clear();
    lblStatus->setToolTip({});
}

void RunningDialog::leftDirectory(QLineEdit& field) {
    completeDirectory(field);
    clearMark(field, !field.text().isEmpty());
}

void RunningDialog::browse(QLineEdit& field, const char* prompt) {
    browseDirectory(host_, field, prompt);
    leftDirectory(field);
}

void RunningDialog::tellNoDirectory(const std::string& reason) {
    lblStatus->setText(QStringLiteral("The Working Directory cannot be created: ") + shown(reason));
    lblStatus->setToolTip(plainTip(lblStatus->text()));
}

void RunningDialog::say(const char* status) {
    lblStatus->setText(QString::fromLatin1(status));
    lblStatus->setToolTip({});
    WaitMs(host_, 1);
}

}  // namespace zg
