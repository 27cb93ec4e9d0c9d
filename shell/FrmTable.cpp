#include "shell/FrmTable.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "base/Numbers.h"
#include "graph/control/CurveTable.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"

namespace zg {

/// The rows as the list shows them; texts are created only for visible rows.
class CurveTableModel : public QAbstractTableModel {
 public:
    CurveTableModel(std::vector<CurveRow> rows, QObject* parent)
        : QAbstractTableModel(parent), rows_(std::move(rows)) {}

    static constexpr int columns = 5;

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    int columnCount(const QModelIndex&) const override { return columns; }

    QString text(int row, int column) const {
        const CurveRow& at = rows_[static_cast<std::size_t>(row)];
        switch (column) {
            case 1:
                return shown(singleText(at.angle)) + QChar(176);
            case 2:
                return shown(doubleText(at.x));
            case 3:
                return shown(doubleText(at.y));
            case 4:
                return shown(doubleText(at.radius));
            default:
                return QString::number(row + 1);
        }
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole) return text(index.row(), index.column());
        return {};
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        static const char* const titles[columns] = {"", "Angle", "X", "Y", "Radius"};
        if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
        return QString::fromLatin1(titles[section]);
    }

 private:
    std::vector<CurveRow> rows_;
};

frmTable::frmTable(Host& host, const GrapInfo& graph, const QPixmap& legend,
                   const std::function<void()>& onRow, const SweepWatch::Serve& serve, QWidget* parent)
    : QDialog(parent),
      host_(host),
      rows_(new CurveTableModel(tabulateCurve(
                                    graph, [&host] { return host.tickCount(); }, onRow, serve),
                                this)) {
    nameForm(*this, "frmTable", "Table");
    fraTable = named(new QGroupBox, "fraTable");
    lvwData = named(new QTreeView, "lvwData");
    lvwData->setAccessibleName(windowTitle());
    lvwData->setModel(rows_);
    lvwData->setRootIsDecorated(false);
    lvwData->setUniformRowHeights(true);
    lvwData->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lvwData->setAllColumnsShowFocus(true);
    lvwData->header()->setSectionsClickable(true);
    lvwData->header()->setSectionsMovable(false);
    lvwData->header()->setStretchLastSection(false);
    lvwData->header()->setMinimumSectionSize(20);
    auto* inFrame = new QVBoxLayout(fraTable);
    inFrame->addLayout(makeHead(graph, legend));
    inFrame->addWidget(lvwData, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraTable, 1);
    layout->addLayout(makeButtons());
    resize(windowSize(*this, 62).expandedTo({0, 440}));
    connect(lvwData->header(), &QHeaderView::sectionClicked, this, guarded(host_, [this](int section) {
                if (section == 0) cmdSelectAll_Click();
            }));
    auto* copy = new QShortcut(QKeySequence::Copy, this);
    connect(copy, &QShortcut::activated, this, guarded(host_, [this] { cmdCopy_Click(); }));
    lvwData->setFocus();
}

QLayout* frmTable::makeHead(const GrapInfo& graph, const QPixmap& legend) {
    const auto label = [](const QString& text, const char* name) {
        auto* made = named(new QLabel(text), name);
        made->setTextFormat(Qt::PlainText);
        made->setTextInteractionFlags(Qt::TextSelectableByMouse);
        made->setWordWrap(true);
        made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        return made;
    };
    lblCoefficient = label(shown(graph.Coefficient), "lblCoefficient");
    lblFunction = label(shown(graph.Equation), "lblFunction");
    picLegend = label(QString(), "picLegend");
    picLegend->setPixmap(legend);
    picLegend->setFrameShape(QFrame::StyledPanel);
    picLegend->setFixedSize(legend.size() / legend.devicePixelRatio() + QSize(4, 4));
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Coefficient : ")), 0, 0);
    grid->addWidget(lblCoefficient, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Function    : ")), 1, 0);
    grid->addWidget(lblFunction, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Legend     : ")), 2, 0);
    grid->addWidget(picLegend, 2, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* frmTable::makeButtons() {
    const auto button = [](const char* text, const char* name) { return namedButton(text, name); };
    cmdCopy = button("&Copy", "cmdCopy");
    cmdSelectAll = button("Select &All", "cmdSelectAll");
    cmdExit = button("E&xit", "cmdExit");
    cmdExit->setDefault(true);
    connect(cmdCopy, &QPushButton::clicked, this, guarded(host_, [this] { cmdCopy_Click(); }));
    connect(cmdSelectAll, &QPushButton::clicked, this, guarded(host_, [this] { cmdSelectAll_Click(); }));
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* each : {cmdCopy, cmdSelectAll, cmdExit}) row->addWidget(each);
    return row;
}

void frmTable::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    layout()->activate();
    shareColumns();
}

void frmTable::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    layout()->activate();
    shareColumns();
}

void frmTable::shareColumns() {
    const int share = lvwData->viewport()->width() / CurveTableModel::columns;
    for (int column = 0; column < CurveTableModel::columns; ++column) lvwData->setColumnWidth(column, share);
}

void frmTable::cmdSelectAll_Click() {
    lvwData->selectAll();
    lvwData->setFocus();
}

void frmTable::cmdCopy_Click() {
    std::vector<int> selected;
    for (const QItemSelectionRange& range : lvwData->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row) selected.push_back(row);
    std::sort(selected.begin(), selected.end());
    selected.erase(std::unique(selected.begin(), selected.end()), selected.end());
    if (selected.empty()) return;
    QString text;
    for (const int row : selected) {
        for (int column = 0; column < CurveTableModel::columns; ++column) {
            if (column > 0) text += QLatin1Char('\t');
            text += rows_->text(row, column);
        }
        text += QLatin1String("\r\n");
    }
    QGuiApplication::clipboard()->setText(text);
}

}  // namespace zg
