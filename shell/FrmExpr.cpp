#include "shell/FrmExpr.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "base/Paths.h"
#include "base/Text.h"
#include "graph/control/EquationCheck.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "settings/ExprFile.h"

namespace zg {

namespace {

constexpr const char* addCaption = "Add";
constexpr const char* editCaption = "Edit";
constexpr int gap = 6;
constexpr int gapsOfTheTray = 5;

}  // namespace

frmExpr::frmExpr(Host& host, QWidget* parent)
    : QDialog(parent), host_(host), ExprFilePath(inSettingsDirectory("expr.dat")) {
    nameForm(*this, "frmExpr", "Expressions");
    lblMsg =
        named(new QLabel(QStringLiteral("Select the e&xpression would you like to used, then click OK.")),
              "lblMsg");
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(lblMsg);
    layout->addLayout(makeList(), 1);
    makeTray();
    layout->addWidget(fraTray);
    resize(windowSize(*this, 55).expandedTo({0, 320}));

    for (const std::string& expression : readExpressions(ExprFilePath)) lstExpr->addItem(shown(expression));
    enableListButtons(true);
    lstExpr->setFocus();
}

QLayout* frmExpr::makeList() {
    lstExpr = named(new QListWidget, "lstExpr");
    lstExpr->setAccessibleName(QStringLiteral("Expressions"));
    lblMsg->setBuddy(lstExpr);
    cmdOk = namedButton("OK", "cmdOk");
    cmdOk->setDefault(true);
    cmdCancel = namedButton("&Cancel", "cmdCancel");
    cmdAdd = namedButton("&Add", "cmdAdd");
    cmdEdit = namedButton("&Edit", "cmdEdit");
    cmdRemov = namedButton("&Remove", "cmdRemov");
    cmdSave = namedButton("&Save", "cmdSave");
    auto* column = new QVBoxLayout;
    for (QPushButton* each : {cmdOk, cmdCancel}) column->addWidget(each);
    column->addSpacing(2 * gap);
    for (QPushButton* each : {cmdAdd, cmdEdit, cmdRemov, cmdSave}) column->addWidget(each);
    column->addStretch();
    auto* row = new QHBoxLayout;
    row->addWidget(lstExpr, 1);
    row->addLayout(column);

    connect(lstExpr, &QListWidget::itemSelectionChanged, this, guarded(host_, [this] { lstExpr_Click(); }));
    connect(lstExpr, &QListWidget::itemDoubleClicked, this, guarded(host_, [this] { cmdOk_Click(); }));
    connect(cmdAdd, &QPushButton::clicked, this,
            guarded(host_, [this] { openTray(addCaption, "E&nter your expression:", QString()); }));
    connect(cmdEdit, &QPushButton::clicked, this, guarded(host_, [this] { cmdEdit_Click(); }));
    connect(cmdRemov, &QPushButton::clicked, this, guarded(host_, [this] { cmdRemov_Click(); }));
    connect(cmdSave, &QPushButton::clicked, this, guarded(host_, [this] { cmdSave_Click(); }));
    connect(cmdOk, &QPushButton::clicked, this, guarded(host_, [this] { cmdOk_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void frmExpr::makeTray() {
    fraTray = named(new QGroupBox, "fraTray");
    lblPrompt = named(new QLabel, "lblPrompt");
    txtExpr = named(new QLineEdit, "txtExpr");
    lblPrompt->setBuddy(txtExpr);
    cmdOkExpr = namedButton("OK", "cmdOkExpr");
    cmdOkExpr->setEnabled(false);
    cmdCancelExpr = namedButton("Cancel", "cmdCancelExpr");
    auto* rows = new QVBoxLayout(fraTray);
    rows->addWidget(lblPrompt);
    auto* row = new QHBoxLayout;
    row->addWidget(txtExpr, 1);
    row->addWidget(cmdOkExpr);
    row->addWidget(cmdCancelExpr);
    rows->addLayout(row);
    fraTray->hide();

    connect(txtExpr, &QLineEdit::textChanged, this,
            [this](const QString& text) { cmdOkExpr->setEnabled(!text.isEmpty()); });
    connect(cmdOkExpr, &QPushButton::clicked, this, guarded(host_, [this] { cmdOkExpr_Click(); }));
    connect(cmdCancelExpr, &QPushButton::clicked, this, guarded(host_, [this] { cmdCancelExpr_Click(); }));
}

int frmExpr::trayGrowth() const { return fraTray->sizeHint().height() + gapsOfTheTray * gap; }

void frmExpr::openTray(const char* caption, const char* prompt, const QString& text) {
    if (fraTray->isVisibleTo(this)) return;
    fraTray->setTitle(QString::fromLatin1(caption));
    lblPrompt->setText(QString::fromLatin1(prompt));
    fraTray->show();
    resize(width(), height() + trayGrowth());
    txtExpr->setText(text);
    txtExpr->selectAll();
    txtExpr->setFocus();
    enableListButtons(false);
    cmdOkExpr->setDefault(true);  // Enter accepts what is being typed
}

void frmExpr::cmdEdit_Click() {
    if (fraTray->isVisibleTo(this) || lstExpr->count() == 0) return;
    if (lstExpr->selectedItems().isEmpty()) lstExpr->setCurrentRow(lstExpr->count() - 1);
    openTray(editCaption, "E&nter your new expression:", lstExpr->selectedItems().constFirst()->text());
}

void frmExpr::enableListButtons(bool enabled) {
    const bool hasRows = lstExpr->count() > 0;
    cmdAdd->setEnabled(enabled);
    cmdEdit->setEnabled(enabled && hasRows);
    cmdRemov->setEnabled(enabled && hasRows);
    cmdSave->setEnabled(enabled);
}

bool frmExpr::isListed(const std::string& expression) const {
    for (int row = 0; row < lstExpr->count(); ++row)
        if (sameExpression(typed(lstExpr->item(row)->text()), expression)) return true;
    return false;
}

void frmExpr::cmdOkExpr_Click() {
    const std::string expression = trim(typed(txtExpr->text()));
    if (expression.empty()) return;
    const std::string fault = expressionFault(expression, [this] { return host_.tickCount(); });
    if (!fault.empty()) {
        host_.showBox({fault, "Error", BoxIcon::Information, BoxButtons::Ok});
        txtExpr->setFocus();
        return;
    }
    if (expression.find('"') != std::string::npos) {
        host_.showBox({"The list cannot keep a double quote (\"), so this expression cannot be added.",
                       typed(fraTray->title()), BoxIcon::Information, BoxButtons::Ok});
        txtExpr->setFocus();
        return;
    }
    if (isListed(expression)) {
        host_.showBox(
            {"Expression already exist!", typed(fraTray->title()), BoxIcon::Information, BoxButtons::Ok});
        txtExpr->setFocus();
        return;
    }
    if (fraTray->title() == QLatin1String(addCaption)) {
        lstExpr->addItem(shown(expression));
    } else {
        const int row = lstExpr->selectedItems().isEmpty() ? lstExpr->count() - 1 : lstExpr->currentRow();
        delete lstExpr->takeItem(row);
        lstExpr->insertItem(row, shown(expression));
        lstExpr->setCurrentRow(row);
    }
    txtExpr->clear();
    txtExpr->setFocus();
    ExprDirty = true;
}

void frmExpr::cmdCancelExpr_Click() {
    const int growth = trayGrowth();
    fraTray->hide();
    layout()->activate();
    resize(width(), height() - growth);
    enableListButtons(true);
    cmdOk->setDefault(true);
    lstExpr->setFocus();
}

/// Escape first cancels typing, and closes the dialog only if nothing is being typed.
void frmExpr::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) && fraTray->isVisibleTo(this))
        guarded(host_, [this] { cmdCancelExpr_Click(); })();
    else
        QDialog::keyPressEvent(event);
}

void frmExpr::cmdRemov_Click() {
    if (lstExpr->selectedItems().isEmpty()) return;
    if (host_.showBox({"Are you sure?", "Remove", BoxIcon::Question, BoxButtons::YesNo}) != BoxAnswer::Yes)
        return;
    delete lstExpr->takeItem(lstExpr->currentRow());
    enableListButtons(true);
    ExprDirty = true;
}

void frmExpr::cmdSave_Click() {
    std::vector<std::string> expressions;
    expressions.reserve(static_cast<std::size_t>(lstExpr->count()));
    for (int row = 0; row < lstExpr->count(); ++row) expressions.push_back(typed(lstExpr->item(row)->text()));
    if (writeExpressions(ExprFilePath, expressions)) ExprDirty = false;
}

void frmExpr::cmdOk_Click() {
    const auto chosen = lstExpr->selectedItems();
    SelectedExpression = chosen.isEmpty() ? std::string() : typed(chosen.constFirst()->text());
    accept();
}

void frmExpr::lstExpr_Click() {
    const auto chosen = lstExpr->selectedItems();
    if (!chosen.isEmpty()) txtExpr->setText(chosen.constFirst()->text());
}

}  // namespace zg
