#include "batch/RunningDialog.h"

#include "base/AtEnd.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/QtText.h"
#include "processing/Wait.h"

namespace zg {

RunningDialog::RunningDialog(Host& host, const char* name, const char* title, QWidget* parent)
    : QDialog(parent), host_(host), lblStatus(new QLabel), cmdCancel(new QPushButton) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(QString::fromLatin1(title));
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    lblStatus->setTextFormat(Qt::PlainText);
    lblStatus->setWordWrap(true);
    lblStatus->setMinimumHeight(2 * lblStatus->fontMetrics().height());
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setText(QStringLiteral("Cancel"));
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
    MarkInvalid(field);
}

void RunningDialog::clearMark(QWidget& field, bool filled) {
    if (fieldMark(field) != yellowMark || !filled) return;
    ClearInvalid(field);
    lblStatus->clear();
}

void RunningDialog::say(const char* status) {
    lblStatus->setText(QString::fromLatin1(status));
    WaitMs(host_, 1);
}

}  // namespace zg
