#include "shell/FrmMainControls.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "shell/Resources.h"

namespace zg {

namespace {

constexpr int rowGap = 2;
constexpr int twipsPerPixel = 15;
constexpr int barScale = 200;
constexpr int legendColumnWidth = 800 / twipsPerPixel;
constexpr int titleMargins = 8;
constexpr int tableSlack = 60 / twipsPerPixel;

/// Properties of the plot that are set in the window's design.
PropertyBag designedProperties() {
    PropertyBag bag;
    bag.WriteProperty("ShowRuler", "True");
    bag.WriteProperty("Zoom", "100");
    bag.WriteProperty("OffsetDrawingAreaX", std::to_string(rulerThickness + cornerGap));
    bag.WriteProperty("OffsetDrawingAreaY", std::to_string(rulerThickness + cornerGap));
    return bag;
}

QToolButton* toolButton(const char* name, const char* icon, const char* toolTip) {
    auto* button = named(new QToolButton, name);
    button->setIcon(programIcon(icon));
    button->setIconSize({24, 24});
    button->setAutoRaise(true);
    button->setToolTip(QString::fromLatin1(toolTip));
    button->setAccessibleName(QString::fromLatin1(toolTip));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void makeToolbar(FrmMainControls& ui) {
    struct Row {
        const char* key;
        const char* name;
        const char* toolTip;
    };
    constexpr std::array<Row, 5> rows = {{{"new", "tblToolbar_new", "New"},
                                          {"open", "tblToolbar_open", "Open"},
                                          {"save", "tblToolbar_save", "Save"},
                                          {"print", "tblToolbar_print", "Print"},
                                          {"copy", "tblToolbar_copy", "Copy"}}};
    ui.tblToolbar = named(new QWidget, "tblToolbar");
    auto* layout = new QHBoxLayout(ui.tblToolbar);
    layout->setContentsMargins(rowGap, rowGap, rowGap, rowGap);
    layout->setSpacing(rowGap);
    for (const Row& row : rows) {
        QToolButton* button = toolButton(row.name, row.key, row.toolTip);
        ui.toolbarButtons[row.key] = button;
        layout->addWidget(button);
    }
    layout->addStretch();
}

ChoiceList* choiceList(const char* name, const char* what, const QStringList& rows) {
    auto* list = named(new ChoiceList, name);
    list->addItems(rows);
    list->setAccessibleName(QString::fromLatin1(what));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list->setFixedWidth(list->sizeHintForColumn(0) + 28);
    list->hide();
    return list;
}

void makeToolbox(FrmMainControls& ui) {
    struct Row {
        const char* name;
        const char* icon;
        const char* toolTip;
    };
    constexpr std::array<Row, 7> rows = {{{"tblToolbox_Arrow", "tool_arrow", "Pointer"},
                                          {"tblToolbox_Select", "tool_select", "Select"},
                                          {"tblToolbox_Cross", "tool_cross", "Cross"},
                                          {"tblToolbox_Circular", "tool_circular", "Circular"},
                                          {"tblToolbox_Pan", "tool_pan", "Pan"},
                                          {"tblToolbox_Aspect", "tool_aspect", "Aspect Ratio"},
                                          {"tblToolbox_Zoom", "tool_zoom", "Zoom"}}};
    ui.fraToolbox = named(new QFrame, "fraToolbox");
    ui.tblToolbox = named(new QWidget, "tblToolbox");
    auto* column = new QVBoxLayout(ui.tblToolbox);
    column->setContentsMargins(rowGap, rowGap, rowGap, rowGap);
    column->setSpacing(rowGap);
    auto* group = new QButtonGroup(ui.tblToolbox);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ui.toolboxButtons[i] = toolButton(rows[i].name, rows[i].icon, rows[i].toolTip);
        ui.toolboxButtons[i]->setCheckable(true);
        group->addButton(ui.toolboxButtons[i], static_cast<int>(i) + 1);
        column->addWidget(ui.toolboxButtons[i]);
    }
    ui.toolboxButtons[0]->setChecked(true);
    column->addStretch();
    ui.lstAspect = choiceList("lstAspect", "Aspect ratios", {"1.5", "2.5", "3.5", "4.5", "Custom..."});
    ui.lstZoom = choiceList("lstZoom", "Zoom percentages",
                            {"25%", "50%", "75%", "100%", "125%", "150%", "175%", "200%", "250%", "300%",
                             "350%", "400%", "450%", "500%", "Custom..."});
    auto* row = new QHBoxLayout(ui.fraToolbox);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(rowGap);
    row->addWidget(ui.tblToolbox);
    row->addWidget(ui.lstAspect);
    row->addWidget(ui.lstZoom);
}

void makeEquationRow(FrmMainControls& ui) {
    ui.fraHolder = named(new QFrame, "fraHolder");
    ui.cmbFunction = named(new QComboBox, "cmbFunction");
    ui.cmbFunction->setEditable(true);
    ui.cmbFunction->setInsertPolicy(QComboBox::NoInsert);
    ui.cmbFunction->setCompleter(nullptr);
    ui.cmbFunction->setAccessibleName(QStringLiteral("f(t)"));
    ui.cmbFunction->setToolTip(QStringLiteral("An expression in t, the angle in radians"));
    ui.txtCoefficient = named(new QLineEdit, "txtCoefficient");
    ui.txtCoefficient->setToolTip(QStringLiteral("Values for the names in f(t), as a=4"));
    ui.picColor[0] = named(new ColourBox(rgb(0, 0, 255)), "picColor_0");
    ui.picColor[0]->setAccessibleName(QStringLiteral("Line color"));
    ui.picColor[1] = named(new ColourBox(rgb(0, 0, 255)), "picColor_1");
    ui.picColor[1]->setAccessibleName(QStringLiteral("Marker color"));
    ui.cmdExpr = named(new QPushButton(QStringLiteral("...")), "cmdExpr");
    ui.cmdExpr->setAccessibleName(QStringLiteral("Expressions"));
    ui.cmdExpr->setToolTip(QStringLiteral("Choose from the list of expressions (Alt+X)"));
    ui.cmdExpr->setShortcut(QKeySequence(QStringLiteral("Alt+X")));  // its caption has no letter
    ui.cmdExpr->setFixedWidth(32);
    ui.cmdClear = named(new QPushButton(QStringLiteral("C&lear")), "cmdClear");
    ui.cmdReplace = named(new QPushButton(QStringLiteral("&Replace")), "cmdReplace");
    ui.cmdPlot = named(new QPushButton(QStringLiteral("&Plot")), "cmdPlot");

    auto* grid = new QGridLayout(ui.fraHolder);
    grid->setContentsMargins(6, 4, 6, 4);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    grid->addWidget(labelFor("f(&t) = ", ui.cmbFunction), 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(ui.cmbFunction, 0, 1);
    grid->addWidget(ui.cmdExpr, 0, 2);
    grid->addWidget(labelFor("L&ine color  :", ui.picColor[0]), 0, 3, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(ui.picColor[0], 0, 4);
    grid->addWidget(ui.cmdClear, 0, 5);
    grid->addWidget(ui.cmdReplace, 0, 6);
    grid->addWidget(labelFor("&coefficient : ", ui.txtCoefficient), 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(ui.txtCoefficient, 1, 1, 1, 2);
    grid->addWidget(labelFor("&Marker color :", ui.picColor[1]), 1, 3, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(ui.picColor[1], 1, 4);
    grid->addWidget(ui.cmdPlot, 1, 5, 1, 2);
    grid->setColumnStretch(1, 1);
}

void makeTable(FrmMainControls& ui) {
    ui.lvwTable = named(new GraphTable, "lvwTable");
    ui.lvwTable->setHeaderLabels({"Legend", "Coefficient", "Function"});
    ui.lvwTable->setRootIsDecorated(false);
    ui.lvwTable->setUniformRowHeights(true);
    ui.lvwTable->setAllColumnsShowFocus(true);
    ui.lvwTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ui.lvwTable->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ui.lvwTable->header()->setSectionResizeMode(QHeaderView::Fixed);
    ui.lvwTable->header()->setStretchLastSection(false);
    ui.lvwTable->setToolTip(QStringLiteral("Left click to select: Right click to show popup menu"));
    ui.lvwTable->setAccessibleName(QStringLiteral("Graphs"));
    ui.lvwTable->setIconSize({46, 18});
    constexpr int linesInSight = 4;
    ui.lvwTable->setFixedHeight(std::max(84, linesInSight * ui.lvwTable->fontMetrics().height() + 24));
}

void makeStatusBar(FrmMainControls& ui, QMainWindow& window) {
    ui.sbStatusBar = named(window.statusBar(), "sbStatusBar");
    for (std::size_t i = 0; i < ui.panels.size(); ++i) {
        ui.panels[i] = new QLabel;
        ui.panels[i]->setObjectName(QStringLiteral("sbStatusBar_%1").arg(i + 1));
        ui.sbStatusBar->addWidget(ui.panels[i], i == 0 ? 1 : 0);
    }
    const int width = ui.panels[1]->fontMetrics().horizontalAdvance(QStringLiteral("Percent = 0000.00%00"));
    ui.panels[1]->setMinimumWidth(width);
    ui.panels[2]->setMinimumWidth(width);
    ui.picTray = named(new QFrame, "picTray");
    ui.picTray->setFixedWidth(160);
    ui.pgbProgressBar = named(new StepBar, "pgbProgressBar");
    ui.pgbProgressBar->setTextVisible(false);
    ui.pgbProgressBar->setFixedHeight(14);
    ui.pgbProgressBar->hide();
    auto* tray = new QHBoxLayout(ui.picTray);
    tray->setContentsMargins(0, 0, 0, 0);
    tray->addWidget(ui.pgbProgressBar);
    ui.sbStatusBar->addPermanentWidget(ui.picTray);
}

}  // namespace

ChoiceList::ChoiceList() {
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!pressed_ && onChoice) onChoice(row);
    });
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    QListWidget::mousePressEvent(event);
}

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    const bool chosen = pressed_ && itemAt(event->position().toPoint()) != nullptr;
    pressed_ = false;
    if (chosen && onChoice) onChoice(currentRow());
}

FrmMainControls makeFrmMainControls(QMainWindow& window, Host& host, ModPolarGraph& tables) {
    FrmMainControls ui;
    makeToolbar(ui);
    makeToolbox(ui);
    makeEquationRow(ui);
    makeTable(ui);
    ui.pgPolarGraph = named(new PolarGraphWidget(host, tables, designedProperties()), "pgPolarGraph");

    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->setContentsMargins(rowGap, 0, rowGap, 0);
    rows->setSpacing(rowGap);
    rows->addWidget(ui.tblToolbar);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(rowGap);
    middle->addWidget(ui.fraToolbox);
    middle->addWidget(ui.pgPolarGraph, 1);
    rows->addLayout(middle, 1);
    rows->addWidget(ui.fraHolder);
    rows->addWidget(ui.lvwTable);
    window.setCentralWidget(centre);
    makeStatusBar(ui, window);
    return ui;
}

void StepBar::begin(double steps) {
    steps_ = std::max(1.0, steps);
    done_ = 0;
    setRange(0, barScale);
    setValue(0);
    show();
}

void StepBar::advance() {
    done_ = std::min(done_ + 1, steps_);
    setValue(static_cast<int>(done_ / steps_ * barScale));
}

void GraphTable::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && onPopup) onPopup(event->globalPosition().toPoint());
}

/// The request of a mouse press is ignored: the menu opens at the release.
void GraphTable::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse || !onPopup) return;
    const QRect row = visualItemRect(currentItem());
    onPopup(viewport()->mapToGlobal(row.isValid() ? row.center() : viewport()->rect().center()));
}

void GraphTable::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && onDelete)
        onDelete();
    else
        QTreeWidget::keyPressEvent(event);
}

void GraphTable::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    const int coefficient = width() * 35 / 100;
    // A large font needs more room for the title.
    const int legend =
        std::max(legendColumnWidth, fontMetrics().horizontalAdvance(headerItem()->text(0)) + titleMargins);
    setColumnWidth(0, legend);
    setColumnWidth(1, coefficient);
    setColumnWidth(2, std::max(0, width() - legend - coefficient - tableSlack));
}

}  // namespace zg
