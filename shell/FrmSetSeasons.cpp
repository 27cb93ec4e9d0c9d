#include "shell/FrmSetSeasons.h"

#include <QGridLayout>
#include <QLabel>

#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr std::array<const char*, 12> monthLabels = {
    "&January:", "&February:", "&March:",     "&April:",   "Ma&y:",      "J&une:",
    "Ju&ly:",    "Au&gust:",   "&September:", "&October:", "&November:", "&December:"};

QString monthName(const char* name, std::size_t index) {
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index);
}

void select(QComboBox& list, const std::string& season) {
    const int row = list.findText(shown(season));
    if (row >= 0) list.setCurrentIndex(row);
}

}  // namespace

frmSetSeasons::frmSetSeasons(Host& host, QWidget* parent) : QDialog(parent), host_(host) {
    nameForm(*this, "frmSetSeasons", " Set Seasons for Generating Wind Roses from Meteorological Data");
    layOut();
    for (std::size_t month = 0; month < cboSeason.size(); ++month) {
        const auto click = guarded(host_, [this, month] { cboSeason_Click(month); });
        connect(cboSeason[month], &QComboBox::currentIndexChanged, this, click);
        // Selecting the current row again is a click too.
        connect(cboSeason[month], &QComboBox::activated, this, click);
    }
    connect(cmdOk, &QPushButton::clicked, this, guarded(host_, [this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdDefaults, &QPushButton::clicked, this, guarded(host_, [this] { cmdDefaults_Click(); }));
    Form_Load();
}

void frmSetSeasons::layOut() {
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    for (std::size_t month = 0; month < cboSeason.size(); ++month) {
        cboSeason[month] = named(new QComboBox, monthName("cboSeason", month));
        cboSeason[month]->setAccessibleName(spoken(QString::fromLatin1(monthLabels[month])));
        for (const std::string_view season : seasonChoices) cboSeason[month]->addItem(shown(season));
        txtCustomSeason[month] = named(new QLineEdit, monthName("txtCustomSeason", month));
        txtCustomSeason[month]->setAccessibleName(spoken(QString::fromLatin1(monthLabels[month])) +
                                                  QStringLiteral(" name of a custom season"));
        txtCustomSeason[month]->setMinimumWidth(digitsWide(*txtCustomSeason[month], 18));
        QLabel* lblMonth =
            named(labelFor(monthLabels[month], cboSeason[month]), monthName("lblMonth", month));
        const int row = static_cast<int>(month);
        grid->addWidget(lblMonth, row, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(cboSeason[month], row, 1);
        grid->addWidget(txtCustomSeason[month], row, 2);
        setCustom(month, false);
    }
    cmdDefaults = namedButton("D&efaults", "cmdDefaults");
    cmdOk = namedButton("OK", "cmdOk");
    cmdOk->setDefault(true);
    cmdCancel = namedButton("Cancel", "cmdCancel");
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    buttons->setContentsMargins(0, 8, 0, 0);
    buttons->addWidget(cmdDefaults);
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);
    grid->addLayout(buttons, static_cast<int>(cboSeason.size()), 0, 1, 3);
    grid->setColumnStretch(2, 1);
    // The title is long and should fit above the dialog.
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + 120);
}

void frmSetSeasons::setCustom(std::size_t month, bool enabled) {
    if (enabled)
        EnableField(*txtCustomSeason[month]);
    else
        DisableField(*txtCustomSeason[month]);
}

void frmSetSeasons::Form_Load() {
    const SeasonFields stored = loadSeasonFields();
    for (std::size_t month = 0; month < cboSeason.size(); ++month) {
        select(*cboSeason[month], stored.cboSeason[month]);
        txtCustomSeason[month]->setText(shown(stored.txtCustomSeason[month]));
        if (!stored.txtCustomSeason[month].empty()) setCustom(month, true);
    }
}

void frmSetSeasons::cboSeason_Click(std::size_t month) {
    if (typed(cboSeason[month]->currentText()) == customSeason) {
        setCustom(month, true);
        return;
    }
    ClearInvalid(*txtCustomSeason[month]);
    setCustom(month, false);
}

void frmSetSeasons::cmdDefaults_Click() {
    const SeasonFields defaults = defaultSeasonFields();
    for (std::size_t month = 0; month < cboSeason.size(); ++month) {
        select(*cboSeason[month], defaults.cboSeason[month]);
        txtCustomSeason[month]->clear();
        setCustom(month, false);
    }
}

SeasonFields frmSetSeasons::fields() const {
    SeasonFields rows;
    for (std::size_t month = 0; month < cboSeason.size(); ++month) {
        rows.cboSeason[month] = typed(cboSeason[month]->currentText());
        rows.txtCustomSeason[month] = typed(txtCustomSeason[month]->text());
    }
    return rows;
}

void frmSetSeasons::cmdOK_Click() {
    const SeasonFields rows = fields();
    const auto missing = firstMissingCustomSeason(rows);
    for (std::size_t month = 0; month < missing.value_or(rows.cboSeason.size()); ++month)
        if (fieldMark(*txtCustomSeason[month]) == yellowMark && !rows.txtCustomSeason[month].empty())
            ClearInvalid(*txtCustomSeason[month]);
    if (missing) {
        MarkInvalid(*txtCustomSeason[*missing]);
        host_.showBox({std::string(missingCustomSeasonText), "Error", BoxIcon::Warning, BoxButtons::Ok});
        return;
    }
    acceptSeasons(rows);
    accept();
}

}  // namespace zg
