#include "shell/FrmSetWindSpeedClasses.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/KeyFilter.h"
#include "platform/QtText.h"

namespace zg {

namespace {

QString rowName(const char* name, std::size_t index) {
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index);
}

}  // namespace

frmSetWindSpeedClasses::frmSetWindSpeedClasses(Host& host, QWidget* parent) : QDialog(parent), host_(host) {
    nameForm(*this, "frmSetWindSpeedClasses", " Set Wind Speed Class Range Limits");
    layOut();
    for (std::size_t row = 0; row < txtWindSpeedClassMin.size(); ++row) {
        QLineEdit* box = txtWindSpeedClassMin[row];
        filterKeys(*box, KeyWindClass);
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this, [this, row](const QString& text) {
            lblWindSpeedClassMax[row]->setText(shown(windClassLabel(typed(text))));
        });
    }
    connect(cmdOK, &QPushButton::clicked, this, guarded(host_, [this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdDefault, &QPushButton::clicked, this, guarded(host_, [this] { cmdDefault_Click(); }));
    Form_Load();
}

void frmSetWindSpeedClasses::layOut() {
    for (std::size_t row = 0; row < txtWindSpeedClassMin.size(); ++row) {
        txtWindSpeedClassMin[row] = named(new QLineEdit, rowName("txtWindSpeedClassMin", row));
        txtWindSpeedClassMin[row]->setFixedWidth(digitsWide(*txtWindSpeedClassMin[row], 9));
        lblWindSpeedClassMax[row] = named(new QLabel(this), rowName("lblWindSpeedClassMax", row));
        lblWindSpeedClassMax[row]->setVisible(row > 0);
    }
    auto* rows = new QVBoxLayout(this);
    rows->setSpacing(6);
    for (std::size_t row = 0; row < txtWindSpeedClassMin.size(); ++row) {
        auto* frame = new QGroupBox(QStringLiteral("Wind Speed Class &%1 Range:").arg(row + 1));
        txtWindSpeedClassMin[row]->setAccessibleName(spoken(frame->title()));
        auto* inFrame = new QHBoxLayout(frame);
        inFrame->addWidget(txtWindSpeedClassMin[row]);
        const bool last = row + 1 == txtWindSpeedClassMin.size();
        inFrame->addWidget(new QLabel(last ? QStringLiteral("+ m/s") : QStringLiteral("m/s    to")));
        if (!last) inFrame->addWidget(lblWindSpeedClassMax[row + 1]);
        inFrame->addStretch();
        rows->addWidget(frame);
    }
    cmdDefault = namedButton("&Default", "cmdDefault");
    cmdOK = namedButton("&OK", "cmdOK");
    cmdCancel = namedButton("&Cancel", "cmdCancel");
    cmdOK->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 6, 0, 0);
    buttons->addWidget(cmdDefault);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    rows->addLayout(buttons);
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + 140);
}

bool frmSetWindSpeedClasses::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit*>(watched) != nullptr) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusNextPrevChild(true);  // Enter moves to the next field and does not accept the dialog
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmSetWindSpeedClasses::Form_Load() {
    const ClassTexts stored = loadWindClasses();
    for (std::size_t row = 0; row < stored.size(); ++row) {
        txtWindSpeedClassMin[row]->setText(shown(stored[row]));
        lblWindSpeedClassMax[row]->setText(shown(windClassLabel(stored[row])));
    }
}

void frmSetWindSpeedClasses::clearWhenFilled(std::size_t row) {
    QLineEdit& box = *txtWindSpeedClassMin[row];
    if (fieldMark(box) == yellowMark && !box.text().isEmpty()) ClearInvalid(box);
}

void frmSetWindSpeedClasses::cmdDefault_Click() {
    for (std::size_t row = 0; row < txtWindSpeedClassMin.size(); ++row) {
        txtWindSpeedClassMin[row]->setText(shown(settings.DefaultWindClassMin[row]));
        clearWhenFilled(row);
    }
}

ClassTexts frmSetWindSpeedClasses::texts() const {
    ClassTexts all;
    for (std::size_t row = 0; row < all.size(); ++row) all[row] = typed(txtWindSpeedClassMin[row]->text());
    return all;
}

/// Rows before the invalid one have passed; it is marked and reported.
bool frmSetWindSpeedClasses::refuse(const std::optional<ClassFault>& fault) {
    for (std::size_t row = 0; row < (fault ? fault->row : txtWindSpeedClassMin.size()); ++row)
        clearWhenFilled(row);
    if (!fault) return false;
    MarkInvalid(*txtWindSpeedClassMin[fault->row]);
    host_.showBox({fault->message, "Error", BoxIcon::Warning, BoxButtons::Ok});
    return true;
}

void frmSetWindSpeedClasses::cmdOK_Click() {
    const ClassTexts all = texts();
    if (refuse(findEmptyClass(all)) || refuse(findDisorderedClass(all))) return;
    acceptWindClasses(all);
    accept();
}

}  // namespace zg
