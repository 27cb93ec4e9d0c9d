// The commands of the menus and of the two toolbars.

#include <QButtonGroup>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "batch/BatchBitmap.h"
#include "batch/FrmBatchMode.h"
#include "batch/FrmCreateReport.h"
#include "dialogs/gridded/ClosedLibraries.h"
#include "dialogs/gridded/GridForm.h"
#include "dialogs/point/FrmOpenAERMETFile.h"
#include "dialogs/point/FrmOpenAMMNETDataFile.h"
#include "dialogs/point/FrmOpenSURFDATFile.h"
#include "dialogs/point/FrmOpenTSFDataFile.h"
#include "dialogs/point/FrmOpenUPDATFile.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "processing/TextViewer.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmAboutZephyrgraph.h"
#include "shell/FrmAddLabel.h"
#include "shell/FrmAspect.h"
#include "shell/FrmChangeRadius.h"
#include "shell/FrmGridFonts.h"
#include "shell/FrmMain.h"
#include "shell/FrmOptions.h"
#include "shell/FrmOptionsLegend.h"
#include "shell/FrmSelectWindRose.h"
#include "shell/FrmSetSeasons.h"
#include "shell/FrmSetWindSpeedClasses.h"
#include "shell/FrmZoom.h"
#include "shell/MenuTree.h"

namespace zg {

namespace {

constexpr int aspectEntries = 4;
constexpr int customAspectRow = 4;
constexpr int customZoomRow = 14;
constexpr std::int32_t selectTool = 4;

/// Runs an action when Enter is pressed in a list, with the current row.
class EnterFilter : public QObject {
 public:
    EnterFilter(QObject* parent, std::function<void()> action)
        : QObject(parent), action_(std::move(action)) {}

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        action_();
        return true;
    }

 private:
    std::function<void()> action_;
};

std::string indexed(const char* name, int index) { return std::string(name) + "_" + std::to_string(index); }

}  // namespace

std::map<std::string, std::function<void()>> frmMain::commands() {
    std::map<std::string, std::function<void()>> table = {
        {"mnuFileOption_1", [this] { mnuFileOption_Click(1); }},
        {"mnuFileOption_18", [this] { mnuFileOption_Click(18); }},
        {"mnuFileOption_12", [this] { mnuFileOption_Click(12); }},
        {"mnuFileOption_13", [this] { mnuFileOption_Click(13); }},
        {"mnuFileOption_15", [this] { mnuFileOption_Click(15); }},
        {"mnuFileOption_16", [this] { mnuFileOption_Click(16); }},
        {"mnuEditOption_0", [this] { mnuEditOption_Click(0); }},
        {"mnuEditOption_1", [this] { mnuEditOption_Click(1); }},
        {"mnuEditOption_3", [this] { mnuEditOption_Click(3); }},
        {"mnuViewFRQFile", [this] { viewFrqFile(); }},
        {"mnuViewToolbar", [this] { toggleShown("mnuViewToolbar", *ui_.tblToolbar); }},
        {"mnuViewToolbox", [this] { toggleShown("mnuViewToolbox", *ui_.fraToolbox); }},
        {"mnuViewRulerShow",
         [this] { pgPolarGraph().ShowRuler(actions_.at("mnuViewRulerShow")->isChecked()); }},
        {"mnuViewAspectOption_5", [this] { mnuViewAspectOption_Click(5); }},
        {"mnuViewDA", [this] { pgPolarGraph().ResetDrawingArea(); }},
        {"mnuViewRefresh", [this] { pgPolarGraph().Refresh(); }},
        {"mnuSetSeasons", [this] { frmSetSeasons(host_, this).exec(); }},
        {"mnuSetWindSpeedClasses", [this] { frmSetWindSpeedClasses(host_, this).exec(); }},
        {"mnuAvePeriod", [this] { frmSelectWindRose(host_, pgPolarGraph(), this).exec(); }},
        {"mnuChangeRadius", [this] { frmChangeRadius(host_, pgPolarGraph(), this).exec(); }},
        {"mnuAddLabel", [this] { frmAddLabel(host_, pgPolarGraph(), this).exec(); }},
        {"mnuEditLegend", [this] { frmOptionsLegend(host_, pgPolarGraph(), this).exec(); }},
        {"mnuGridFonts", [this] { frmGridFonts(host_, pgPolarGraph(), this).exec(); }},
        {"mnuPolarOption_6", [this] { frmOptions(host_, pgPolarGraph(), this).exec(); }},
        {"mnuPolarOption_1",
         [this] {
             pgPolarGraph().ShowLabel(actions_.at("mnuPolarOption_1")->isChecked());
             pgPolarGraph().DrawGraph();
         }},
        {"mnuPolarOption_2",
         [this] {
             pgPolarGraph().ShowLegend(actions_.at("mnuPolarOption_2")->isChecked());
             pgPolarGraph().DrawGraph();
         }},
        {"mnuPolarOption_4",
         [this] { pgPolarGraph().ShowCoordinateSystem(actions_.at("mnuPolarOption_4")->isChecked()); }},
        {"mnuHelpAbout", [this] { showAbout(); }},
    };
    for (const int i : {3, 4, 5, 6, 7, 8, 9, 10})
        table[indexed("mnuFileOption", i)] = [this, i] { mnuFileOption_Click(i); };
    for (int i = 0; i < aspectEntries; ++i)
        table[indexed("mnuViewAspectOption", i)] = [this, i] { mnuViewAspectOption_Click(i); };
    for (int i = 0; i < 3; ++i) {
        table[indexed("mnuViewZoomSize", i)] = [this, i] { mnuViewZoomSize_Click(i); };
        table[indexed("mnuPolarGridOption", i)] = [this, i] { pgPolarGraph().ShowGrid(i); };
    }
    for (const int i : {0, 1, 2, 4, 6, 7, 9, 11})
        table[indexed("mnuGraphOption", i)] = [this, i] { mnuGraphOption_Click(i); };
    for (int i = 0; i < 2; ++i)
        table[indexed("mnuViewRulerModeOption", i)] = [this, i] { pgPolarGraph().SetRulerMode(i); };
    return table;
}

void frmMain::makeMenus() {
    actions_ = buildMenus(*menuBar());
    commands_ = commands();
    for (const MenuEntry& entry : menuTree()) {
        if (entry.kind == EntryKind::Menu || entry.kind == EntryKind::Separator) continue;
        QAction* action = actions_.at(entry.name);
        const auto command = commands_.find(entry.name);
        if (command == commands_.end())
            action->setEnabled(false);
        else
            connect(action, &QAction::triggered, this, guarded(host_, command->second));
    }
    connect(actions_.at("mnuEdit")->menu(), &QMenu::aboutToShow, this,
            guarded(host_, [this] { mnuEdit_Open(); }));
}

QAction* frmMain::menuAction(const std::string& name) const {
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

void frmMain::mnuEdit_Open() {
    for (const char* entry : {"mnuEditOption_0", "mnuEditOption_3"})
        actions_.at(entry)->setEnabled(hasCommand(entry) && pgPolarGraph().ActiveSelection());
}

/// The entry for each button of tblToolbar.
std::map<std::string, std::string> frmMain::toolbarEntries() {
    return {{"new", "mnuFileOption_0"},
            {"open", "mnuFileOption_1"},
            {"save", "mnuFileOption_12"},
            {"print", "mnuFileOption_16"},
            {"copy", "mnuEditOption_0"}};
}

void frmMain::makeToolbars() {
    for (const auto& [key, entry] : toolbarEntries()) {
        QToolButton* button = ui_.toolbarButtons.at(key);
        const auto command = commands_.find(entry);
        if (command == commands_.end())
            button->setEnabled(false);
        else
            connect(button, &QToolButton::clicked, this, guarded(host_, command->second));
    }
    followSelection();

    for (std::size_t i = 0; i < ui_.toolboxButtons.size(); ++i)
        connect(ui_.toolboxButtons[i], &QToolButton::clicked, this,
                guarded(host_, [this, i] { pressTool(static_cast<Tool>(i + 1)); }));
    ui_.lstAspect->onChoice = guarded(host_, [this](int row) { lstAspect_Click(row); });
    ui_.lstZoom->onChoice = guarded(host_, [this](int row) { lstZoom_Click(row); });
    customEntryOnEnter(*ui_.lstAspect, [this] { showAspectDialog(); });
    customEntryOnEnter(*ui_.lstZoom, [this] { showZoomDialog(); });
}

void frmMain::customEntryOnEnter(QListWidget& list, std::function<void()> show) {
    list.installEventFilter(new EnterFilter(this, guarded(host_, [&list, show = std::move(show)] {
                                                if (list.currentRow() == list.count() - 1) show();
                                            })));
}

void frmMain::pressTool(Tool tool) {
    struct Row {
        std::int32_t setActiveTool;
        std::int16_t pointer;  ///< 0 for the cursor
        ToolCursor cursor;
    };
    static const std::map<Tool, Row> rows = {{Tool::Arrow, {0, 1, {}}},
                                             {Tool::Select, {4, 0, ToolCursor::Select}},
                                             {Tool::Cross, {2, 2, {}}},
                                             {Tool::Circular, {1, 0, ToolCursor::Circular}},
                                             {Tool::Pan, {3, 0, ToolCursor::Pan}},
                                             {Tool::Aspect, {0, 0, ToolCursor::Aspect}},
                                             {Tool::Zoom, {0, 0, ToolCursor::Zoom}}};
    ui_.toolboxButtons[static_cast<std::size_t>(tool) - 1]->setChecked(true);
    ui_.lstAspect->hide();
    ui_.lstZoom->hide();
    const Row& row = rows.at(tool);
    pgPolarGraph().SetActiveTool(row.setActiveTool);
    if (row.pointer == 0)
        LoadToolCursor(row.cursor);
    else
        pgPolarGraph().MousePointer(row.pointer);
    if (tool == Tool::Aspect) ui_.lstAspect->show();
    if (tool == Tool::Zoom) ui_.lstZoom->show();
    activeToolButton_ = tool;
    followSelection();
}

void frmMain::mnuFileOption_Click(int Index) {
    switch (Index) {
        case 1:
            return openFrqFile();
        case 4:
            frmOpenAERMETFile(host_, starter_, processingWindow(), AermetKind::Surface, this).exec();
            return;
        case 5:
            frmOpenAERMETFile(host_, starter_, processingWindow(), AermetKind::Profile, this).exec();
            return;
        case 6:
            frmOpenAMMNETDataFile(host_, starter_, processingWindow(), this).exec();
            return;
        case 9:
            frmOpenUPDATFile(host_, starter_, processingWindow(), this).exec();
            return;
        case 10:
            frmOpenTSFDataFile(host_, starter_, processingWindow(), this).exec();
            return;
        case 8:
            frmOpenSURFDATFile(host_, starter_, processingWindow(), this).exec();
            return;
        case 3:
            useLibrariesBeside(applicationDirectory);
            frmProcess3DDATFiles(host_, starter_, processingWindow(), this).exec();
            return;
        case 7:
            useLibrariesBeside(applicationDirectory);
            frmProcessVENTOSDATFiles(host_, starter_, processingWindow(), this).exec();
            return;
        case 12:
            mnuEditOption_Click(1);
            return mnuEditOption_Click(3);
        case 13:
            return showBatchMode();
        case 15:
            frmCreateReport(host_, this).exec();
            return;
        case 16:
            return pgPolarGraph().SentToPrinter();
        case 18:
            ending_ = true;
            return QCoreApplication::exit();
        default:
            return;
    }
}

void frmMain::mnuEditOption_Click(int Index) {
    if (Index == 0) pgPolarGraph().EditCopy();
    if (Index == 1) {
        pressTool(Tool::Select);
        pgPolarGraph().EditSelectAll();
        followSelection();
    }
    if (Index != 3) return;
    if (settings.BatchMode)
        pgPolarGraph().EditCopyTo(batchBitmapPath());
    else
        pgPolarGraph().EditCopyTo();
}

ProcessingWindow frmMain::processingWindow() {
    return {[this](const std::string& path) { PlotFrqFile(path); }, [this] { return ending_; },
            [this] { frmSetSeasons(host_, this).exec(); },
            [this] { frmSetWindSpeedClasses(host_, this).exec(); }};
}

void frmMain::showBatchMode() {
    const BatchHooks hooks{[this] {
                               mnuFileOption_Click(1);
                               return pgPolarGraph().lastOpenOutcome() == FreqFileOutcome::Loaded;
                           },
                           [this] {
                               pgPolarGraph().Refresh();
                               mnuFileOption_Click(12);
                           }};
    frmBatchMode(host_, hooks, this).exec();
}

void frmMain::toggleShown(const char* entry, QWidget& bar) {
    bar.setVisible(actions_.at(entry)->isChecked());
}

void frmMain::viewFrqFile() {
    if (settings.CurrentFrqPath.empty()) return;
    ViewTextFile(host_, starter_, settings.CurrentFrqPath, applicationDirectory);
}

void frmMain::showAbout(const QString& title) {
    frmAboutZephyrgraph about(this);
    if (!title.isEmpty()) about.setWindowTitle(title);
    about.exec();
}

void frmMain::toolDropsSelection() {
    if (pgPolarGraph().SetActiveTool() != selectTool) return;
    pgPolarGraph().SetActiveTool(0);
    pgPolarGraph().SetActiveTool(selectTool);
    followSelection();
}

void frmMain::mnuViewAspectOption_Click(int Index) {
    if (Index < 0 || Index >= aspectEntries) {
        showAspectDialog();
    } else {
        QAction* entry = actions_.at(indexed("mnuViewAspectOption", Index));
        entry->setChecked(true);
        const float ratio = toSingle(val(typed(entry->text())));
        if (ratio != pgPolarGraph().AspectRatio()) {
            {
                const QSignalBlocker quiet(ui_.lstAspect);
                ui_.lstAspect->setCurrentRow(Index);
            }
            pgPolarGraph().AspectRatio(ratio);
        }
    }
    toolDropsSelection();
}

void frmMain::lstAspect_Click(int row) {
    if (row < 0) return;
    if (row == customAspectRow) {
        mnuViewAspectOption_Click(row);
        return;
    }
    const float ratio = toSingle(val(typed(ui_.lstAspect->item(row)->text())));
    if (ratio != pgPolarGraph().AspectRatio()) mnuViewAspectOption_Click(row);
}

void frmMain::lstZoom_Click(int row) {
    if (row < 0) return;
    settings.ZoomListIndex = static_cast<std::int16_t>(row);
    if (row == customZoomRow) {
        WriteCfgFile(settings.CfgFilePath);
        showZoomDialog();
        return;
    }
    const std::int16_t percent = toInt16(intFloor(val(typed(ui_.lstZoom->item(row)->text()))));
    if (percent != pgPolarGraph().Zoom()) pgPolarGraph().Zoom(percent);
    settings.ZoomPercentText = std::to_string(percent);
    WriteCfgFile(settings.CfgFilePath);
}

void frmMain::mnuViewZoomSize_Click(int Index) {
    if (Index == 0) pgPolarGraph().Zoom(125);
    if (Index == 1) pgPolarGraph().Zoom(200);
    if (Index == 2) showZoomDialog();
    toolDropsSelection();
}

void frmMain::showAspectDialog() { frmAspect(host_, pgPolarGraph(), this).exec(); }

void frmMain::showZoomDialog() { frmZoom(host_, pgPolarGraph(), this).exec(); }

}  // namespace zg
