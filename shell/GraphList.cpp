#include "shell/GraphList.h"

#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QSignalBlocker>
#include <QStyle>
#include <memory>

#include "base/AtEnd.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/control/EquationCheck.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "shell/FrmExpr.h"
#include "shell/FrmProperties.h"
#include "shell/FrmTable.h"
#include "shell/LegendSwatch.h"

namespace zg {

namespace {

constexpr int coefficientColumn = 1;
constexpr int equationColumn = 2;
constexpr int ghostRole = Qt::UserRole;
constexpr int swatchRole = Qt::UserRole + 1;

bool isGhosted(const QTreeWidgetItem& row) { return row.data(0, ghostRole).toBool(); }

/// A hidden graph's row has a faded picture and grey texts.
void ghost(QTreeWidgetItem& row, bool hidden) {
    const QPixmap swatch = row.data(0, swatchRole).value<QPixmap>();
    row.setData(0, ghostRole, hidden);
    row.setIcon(0, QIcon(hidden ? ghosted(swatch) : swatch));
    for (const int column : {coefficientColumn, equationColumn})
        row.setData(column, Qt::ForegroundRole, hidden ? QVariant(QBrush(Qt::gray)) : QVariant());
}

/// A curve that could not be painted whole has a sign in its row, and the reason as tool tip.
void markFailure(QTreeWidgetItem& row, const std::string& failure) {
    const bool failed = !failure.empty();
    row.setIcon(equationColumn,
                failed ? QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());
    for (int column = 0; column <= equationColumn; ++column) row.setToolTip(column, shown(failure));
}

void selectFrom(QLineEdit& box, const std::string& text, int column) {
    // The column counts in the trimmed text.
    const auto blanks =
        static_cast<int>(text.find_first_not_of(' ') == std::string::npos ? 0 : text.find_first_not_of(' '));
    const int start = std::min(blanks + column - 1, static_cast<int>(box.text().length()));
    box.setFocus();
    box.setSelection(start, static_cast<int>(box.text().length()) - start);
}

}  // namespace

GraphList::GraphList(QWidget& window, Host& host, const FrmMainControls& ui,
                     const std::map<std::string, QAction*>& actions, GraphListHooks hooks)
    : window_(window), host_(host), ui_(ui), actions_(actions), hooks_(std::move(hooks)) {
    connectBoxes();
    connectTable();
    ui_.cmdPlot->setEnabled(false);
    ui_.cmdReplace->setEnabled(false);
}

void GraphList::connectBoxes() {
    QComboBox& functions = *ui_.cmbFunction;
    // Leaving the box with a text that is also in the list is not a click in the list.
    disconnect(functions.lineEdit(), &QLineEdit::editingFinished, &functions, nullptr);
    connect(&functions, &QComboBox::editTextChanged, this, guarded(host_, [this] { cmbFunction_Change(); }));
    connect(&functions, &QComboBox::activated, this, guarded(host_, [this](int i) { cmbFunction_Click(i); }));
    connect(functions.lineEdit(), &QLineEdit::returnPressed, this, guarded(host_, [this] {
                if (ui_.lvwTable->topLevelItemCount() > 0) cmdPlot_Click();
            }));
    connect(ui_.txtCoefficient, &QLineEdit::returnPressed, this, [this] { ui_.cmbFunction->setFocus(); });
    for (ColourBox* box : ui_.picColor) box->asks(host_, nullptr, [](Colour) {});
    connect(ui_.cmdPlot, &QPushButton::clicked, this, guarded(host_, [this] { cmdPlot_Click(); }));
    connect(ui_.cmdReplace, &QPushButton::clicked, this, guarded(host_, [this] { cmdReplace_Click(); }));
    connect(ui_.cmdClear, &QPushButton::clicked, this, [this] {
        ui_.cmbFunction->setEditText(QString());
        ui_.cmbFunction->setFocus();
    });
    connect(ui_.cmdExpr, &QPushButton::clicked, this, guarded(host_, [this] { cmdExpr_Click(); }));
}

void GraphList::connectTable() {
    connect(ui_.lvwTable, &QTreeWidget::itemSelectionChanged, this,
            guarded(host_, [this] { lvwTable_ItemClick(); }));
    // A click on the only selected row also shows it.
    connect(ui_.lvwTable, &QTreeWidget::itemClicked, this, guarded(host_, [this] { lvwTable_ItemClick(); }));
    ui_.lvwTable->onPopup = guarded(host_, [this](const QPoint& at) { popUpMenu(at); });
    ui_.lvwTable->onDelete = guarded(host_, [this] { deleteSelected(); });
    connect(actions_.at("mnuGraph")->menu(), &QMenu::aboutToShow, this,
            guarded(host_, [this] { mnuGraph_Open(); }));
}

std::vector<int> GraphList::selectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : ui_.lvwTable->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

GrapInfo& GraphList::graphOfRow(int row) { return plot().Plot().Item(std::int64_t{row} + 1); }

void GraphList::add(std::int16_t index) {
    const GrapInfo& graph = plot().Plot().Item(std::int64_t{index});
    const QPixmap swatch = legendSwatch(graph.Series, swatchSize, window_.devicePixelRatioF());
    auto* row = new QTreeWidgetItem;
    row->setData(0, swatchRole, swatch);
    row->setText(coefficientColumn, shown(graph.Coefficient));
    row->setText(equationColumn, shown(graph.Equation));
    ghost(*row, !graph.Visible);
    markFailure(*row, graph.Failure);
    ui_.lvwTable->addTopLevelItem(row);
    ui_.lvwTable->scrollToItem(row);
    if (ui_.lvwTable->topLevelItemCount() == 1) selectOnly(0);
}

void GraphList::showFailure(std::int16_t index) {
    // A curve that is being plotted has no row yet.
    if (QTreeWidgetItem* row = ui_.lvwTable->topLevelItem(index - 1))
        markFailure(*row, graphOfRow(index - 1).Failure);
}

/// Rebuilds rows, pictures and the box's list; what is typed in the row of boxes stays.
void GraphList::rebuild() {
    const QSignalBlocker quietTable(ui_.lvwTable);
    const QSignalBlocker quietBox(ui_.cmbFunction);
    const QString typedText = ui_.cmbFunction->currentText();
    ui_.lvwTable->clear();
    ui_.cmbFunction->clear();
    const std::int32_t count = plot().Plot().Count();
    QStringList equations;
    for (std::int32_t i = 1; i <= count; ++i) {
        add(static_cast<std::int16_t>(i));
        equations.append(shown(graphOfRow(i - 1).Equation));
    }
    ui_.cmbFunction->addItems(equations);
    ui_.cmbFunction->setEditText(typedText);
}

void GraphList::selectOnly(int row) {
    const QSignalBlocker quiet(ui_.lvwTable);
    QTreeWidgetItem* item = ui_.lvwTable->topLevelItem(row);
    if (item == nullptr) {
        ui_.lvwTable->clearSelection();
        return;
    }
    ui_.lvwTable->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ui_.lvwTable->viewport()->update();
}

void GraphList::listPlot() {
    rebuild();
    const bool hasRow = ui_.lvwTable->topLevelItemCount() > 0;
    if (hasRow) {
        QTreeWidgetItem* first = ui_.lvwTable->topLevelItem(0);
        ui_.lvwTable->scrollToItem(first);
        ui_.cmbFunction->setEditText(first->text(equationColumn));
        ui_.txtCoefficient->setText(first->text(coefficientColumn));
    }
    ui_.cmdPlot->setEnabled(hasRow);
    ui_.cmdReplace->setEnabled(hasRow);
}

/// The texts of the two boxes; nothing if one of them is wrong, which is then reported and selected.
std::optional<GraphList::CurveTexts> GraphList::checkedTexts() {
    const std::string coefficient = typed(ui_.txtCoefficient->text());
    const std::string equation = typed(ui_.cmbFunction->currentText());
    const auto fault = checkEquation(coefficient, equation, [this] { return host_.tickCount(); });
    if (!fault) return CurveTexts{trim(coefficient), trim(equation)};
    const bool inCoefficient = fault->where == EquationFault::Where::Coefficient;
    const std::string& text = inCoefficient ? coefficient : equation;
    QLineEdit& box = inCoefficient ? *ui_.txtCoefficient : *ui_.cmbFunction->lineEdit();
    selectFrom(box, text, fault->column);
    host_.showBox({fault->description + " : '" + text + "'", "Equation", BoxIcon::Warning, BoxButtons::Ok});
    selectFrom(box, text, fault->column);  // the box took the focus, which may clear the selection
    return std::nullopt;
}

void GraphList::cmdPlot_Click() {
    if (plotting_) return;  // the previous curve is still being drawn, and has no row yet
    const AtEnd plotted([this] { plotting_ = false; });
    plotting_ = true;
    hooks_.pressArrow();
    if (trim(typed(ui_.cmbFunction->currentText())).empty()) return;  // Enter in the empty box
    const auto texts = checkedTexts();
    if (!texts) return;
    Plot& curves = plot().Plot();
    curves.Add(texts->coefficient, texts->equation, ui_.picColor[0]->colour(), ui_.picColor[1]->colour());
    const std::int16_t index = toInt16(static_cast<double>(curves.Count()));
    std::exception_ptr failed;
    try {
        plot().DrawGraph(index);
    } catch (...) {
        failed = std::current_exception();  // the list then still shows the plot's curves
    }
    add(index);
    const QSignalBlocker quiet(ui_.cmbFunction);
    const QString text = ui_.cmbFunction->currentText();
    ui_.cmbFunction->addItem(shown(texts->equation));
    ui_.cmbFunction->setEditText(text);
    ui_.cmdReplace->setEnabled(true);
    if (failed) std::rethrow_exception(failed);
}

void GraphList::cmdReplace_Click() {
    const std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    const auto texts = checkedTexts();
    if (!texts) return;
    const int row = rows.front();
    GrapInfo& graph = graphOfRow(row);
    graph.Coefficient = texts->coefficient;
    graph.Equation = texts->equation;
    graph.Series.Pen.FillColor = ui_.picColor[0]->colour();
    graph.Series.Marker.FillColor = ui_.picColor[1]->colour();
    rebuild();
    selectOnly(row);
    ui_.txtCoefficient->setText(shown(texts->coefficient));
    plot().DrawGraph();  // last: an equation that fails at some angle must still get its row
}

void GraphList::cmdExpr_Click() {
    frmExpr dialog(host_, &window_);
    dialog.exec();
    if (dialog.SelectedExpression.empty()) return;
    ui_.cmbFunction->setEditText(shown(dialog.SelectedExpression));
    ui_.cmbFunction->setFocus();
}

void GraphList::cmbFunction_Change() {
    if (!plot().StopAni()) return;
    ui_.cmdPlot->setEnabled(!ui_.cmbFunction->currentText().isEmpty());
    if (ui_.lvwTable->topLevelItemCount() > 0) ui_.cmdReplace->setEnabled(ui_.cmdPlot->isEnabled());
}

void GraphList::cmbFunction_Click(int index) {
    selectOnly(index);
    if (const QTreeWidgetItem* row = ui_.lvwTable->topLevelItem(index))
        ui_.txtCoefficient->setText(row->text(coefficientColumn));
}

void GraphList::lvwTable_ItemClick() {
    const std::vector<int> rows = selectedRows();
    if (rows.size() == 1) showInEditRow(rows.front());
}

void GraphList::showInEditRow(int row) {
    const QTreeWidgetItem* item = ui_.lvwTable->topLevelItem(row);
    ui_.txtCoefficient->setText(item->text(coefficientColumn));
    ui_.cmbFunction->setEditText(item->text(equationColumn));
    showColours(row);
}

/// Replace gives the row's curve the colours of the boxes.
void GraphList::showColours(int row) {
    const Series& series = graphOfRow(row).Series;
    ui_.picColor[0]->setColour(series.Pen.FillColor);
    ui_.picColor[1]->setColour(series.Marker.FillColor);
}

void GraphList::popUpMenu(const QPoint& at) {
    if (ui_.lvwTable->topLevelItemCount() > 0) actions_.at("mnuGraph")->menu()->popup(at);
}

void GraphList::mnuGraph_Open() {
    const auto enable = [this](int index, bool enabled) {
        actions_.at("mnuGraphOption_" + std::to_string(index))->setEnabled(enabled);
    };
    for (const int index : {0, 1, 2, 4, 6, 7, 9, 11}) enable(index, false);
    const bool animates = !plot().StopAni();
    const std::vector<int> rows = selectedRows();
    if (!animates && !rows.empty()) {
        const bool hidden = isGhosted(*ui_.lvwTable->topLevelItem(rows.front()));
        enable(0, !hidden);
        enable(1, hidden);
        enable(2, true);
    }
    if (rows.size() == 1) {
        enable(6, graphOfRow(rows.front()).Delay >= 1 && !animates);
        enable(7, animates);
        enable(9, !animates);
        enable(11, !animates);
    }
    enable(4, ui_.lvwTable->topLevelItemCount() > 0);
}

void GraphList::hideSelected(bool hide) {
    bool changed = false;
    for (const int row : selectedRows()) {
        QTreeWidgetItem& item = *ui_.lvwTable->topLevelItem(row);
        if (isGhosted(item) == hide) continue;
        ghost(item, hide);
        graphOfRow(row).Visible = !hide;
        changed = true;
    }
    if (changed) plot().DrawGraph();
}

void GraphList::deleteSelected() {
    const std::vector<int> rows = selectedRows();
    // The keyboard gets here without the menu: while an animation runs its curve must stay.
    if (rows.empty() || !plot().StopAni()) return;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) plot().Plot().Remove(std::int64_t{*row} + 1);
    ui_.lvwTable->setSelectionMode(QAbstractItemView::SingleSelection);
    rebuild();
    ui_.lvwTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    selectOnly(0);
    if (ui_.lvwTable->topLevelItemCount() > 0) {
        ui_.lvwTable->scrollToItem(ui_.lvwTable->topLevelItem(0));
        showInEditRow(0);
    } else {
        ui_.cmdReplace->setEnabled(false);
        ui_.txtCoefficient->clear();
    }
    plot().DrawGraph();
}

void GraphList::playSelected() {
    const std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    hooks_.pressArrow();
    plot().ClearGraph();
    for (int row = 0; row < plot().Plot().Count(); ++row) {
        const CurveSweep sweep = row == rows.front() ? CurveSweep::StepByStep : CurveSweep::AtOnce;
        if (!plot().DrawGraph(toInt16(row + 1.0), sweep)) break;
    }
}

void GraphList::showTable() {
    const std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    const GrapInfo graph = graphOfRow(rows.front());  // events may change the list during sampling
    const QPixmap swatch = ui_.lvwTable->topLevelItem(rows.front())->data(0, swatchRole).value<QPixmap>();
    if (const auto dialog = sampledTable(graph, swatch)) dialog->exec();
}

/// The table with its rows, null if sampling was stopped. A long one is locked and stopped like a curve being
/// painted.
std::unique_ptr<frmTable> GraphList::sampledTable(const GrapInfo& graph, const QPixmap& swatch) {
    const auto serve = [this] {
        host_.pumpEvents(0);
        return !plot().StopAni();
    };
    hooks_.beginProgress(graph);
    const AtEnd unlocked([this] {
        plot().StopAni(true);
        hooks_.lockWhileDrawing(true);
    });
    plot().StopAni(false);
    hooks_.lockWhileDrawing(false);
    try {
        return std::make_unique<frmTable>(
            host_, graph, swatch, [this] { ui_.pgbProgressBar->advance(); }, serve, &window_);
    } catch (const SweepStopped&) {
        return nullptr;
    }
}

void GraphList::showProperties() {
    const std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    const int row = rows.front();
    const auto applied = [this, row] {
        rebuild();
        selectOnly(row);
        showColours(row);
        plot().DrawGraph();
    };
    frmProperties(host_, graphOfRow(row), applied, &window_).exec();
}

void GraphList::selectAll() { ui_.lvwTable->selectAll(); }

void GraphList::setFree(bool value) {
    ui_.cmbFunction->setEnabled(value);
    ui_.cmdReplace->setEnabled(value && ui_.cmbFunction->count() > 0);
}

}  // namespace zg
