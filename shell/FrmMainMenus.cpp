// The commands of the menus and of the two toolbars.

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

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
#include "processing/TextViewer.h"
#include "settings/Settings.h"
#include "shell/FrmAboutZephyrgraph.h"
#include "shell/FrmAddLabel.h"
#include "shell/FrmChangeRadius.h"
#include "shell/FrmGridFonts.h"
#include "shell/FrmMain.h"
#include "shell/FrmOptions.h"
#include "shell/FrmOptionsLegend.h"
#include "shell/FrmSelectWindRose.h"
#include "shell/FrmSetSeasons.h"
#include "shell/FrmSetWindSpeedClasses.h"
#include "shell/MenuTree.h"

namespace zg {

namespace {

std::string entryName(const char* name, int index) { return std::string(name) + "_" + std::to_string(index); }

}  // namespace

/// Shows the form of a processing entry.
template <typename Form, typename... Values>
void frmMain::process(Values... values) {
    Form(host_, starter_, processingWindow(), values..., this).exec();
}

/// The same with files already chosen; only forms for gridded data take more than one.
template <typename Form, typename... Values>
void frmMain::processFiles(const std::vector<std::string>& paths, Values... values) {
    Form form(host_, starter_, processingWindow(), values..., this);
    QTimer::singleShot(0, &form, [&form, &paths] {
        for (const std::string& path : paths) form.openFile(path);
    });
    form.exec();
}

void frmMain::processRawFiles(const std::vector<std::string>& paths, InputKind kind) {
    switch (kind) {
        case InputKind::Surf:
            return processFiles<frmOpenSURFDATFile>(paths);
        case InputKind::Up:
            return processFiles<frmOpenUPDATFile>(paths);
        case InputKind::MonitorW:
            return processFiles<frmOpenAMMNETDataFile>(paths);
        case InputKind::AermSfc:
        case InputKind::AermPfl:
            return processFiles<frmOpenAERMETFile>(paths, kind);
        case InputKind::Tsf:
            return processFiles<frmOpenTSFDataFile>(paths);
        case InputKind::M3d:
            useLibrariesBeside(applicationDirectory);
            return processFiles<frmProcess3DDATFiles>(paths);
        case InputKind::Ventos:
            useLibrariesBeside(applicationDirectory);
            return processFiles<frmProcessVENTOSDATFiles>(paths);
        case InputKind::Csv:
            host_.showBox({"\"" + FileNameOf(paths.front()) +
                               "\" is a table of winds. zephyrgraph-export makes wind roses of it.",
                           "Open", BoxIcon::Information, BoxButtons::Ok});
    }
}

frmMain::Commands frmMain::fileCommands() {
    return {
        {"mnuFileOption_1",
         [this] { chooseFrqFile(settings.BatchMode ? settings.BatchFRQFilename : askForFrqFile()); }},
        {"mnuFileOption_3",
         [this] {
             useLibrariesBeside(applicationDirectory);
             process<frmProcess3DDATFiles>();
         }},
        {"mnuFileOption_4", [this] { process<frmOpenAERMETFile>(InputKind::AermSfc); }},
        {"mnuFileOption_5", [this] { process<frmOpenAERMETFile>(InputKind::AermPfl); }},
        {"mnuFileOption_6", [this] { process<frmOpenAMMNETDataFile>(); }},
        {"mnuFileOption_7",
         [this] {
             useLibrariesBeside(applicationDirectory);
             process<frmProcessVENTOSDATFiles>();
         }},
        {"mnuFileOption_8", [this] { process<frmOpenSURFDATFile>(); }},
        {"mnuFileOption_9", [this] { process<frmOpenUPDATFile>(); }},
        {"mnuFileOption_10", [this] { process<frmOpenTSFDataFile>(); }},
        {"mnuFileOption_12",
         [this] {
             selectPage();
             copyTo();
         }},
        {"mnuFileOption_13", [this] { showBatchMode(); }},
        {"mnuFileOption_15", [this] { frmCreateReport(host_, this).exec(); }},
        {"mnuFileOption_16", [this] { pgPolarGraph().SentToPrinter(); }},
        {"mnuFileOption_18",
         [this] {
             ending_ = true;
             QCoreApplication::exit();
         }},
    };
}

frmMain::Commands frmMain::editCommands() {
    return {
        {"mnuEditOption_0", [this] { pgPolarGraph().EditCopy(); }},
        {"mnuEditOption_1", [this] { selectPage(); }},
        {"mnuEditOption_3", [this] { copyTo(); }},
    };
}

frmMain::Commands frmMain::viewCommands() {
    Commands table = {
        {"mnuViewFRQFile", [this] { viewFrqFile(); }},
        {"mnuViewToolbar", [this] { toggleShown("mnuViewToolbar", *ui_.tblToolbar); }},
        {"mnuViewToolbox", [this] { toggleShown("mnuViewToolbox", *ui_.fraToolbox); }},
        {"mnuViewRulerShow",
         [this] { pgPolarGraph().ShowRuler(actions_.at("mnuViewRulerShow")->isChecked()); }},
        {"mnuViewDA", [this] { pgPolarGraph().ResetDrawingArea(); }},
        {"mnuViewRefresh", [this] { pgPolarGraph().Refresh(); }},
        {"mnuViewZoomSize_0", [this] { toolbox_->setZoom(125); }},
        {"mnuViewZoomSize_1", [this] { toolbox_->setZoom(200); }},
        {"mnuViewZoomSize_2", [this] { toolbox_->askForZoom(); }},
        {"mnuAvePeriod", [this] { selectWindRose(); }},
        {"mnuHelpAbout", [this] { showAbout(); }},
    };
    for (const int i : {0, 1, 2, 3, 5})
        table[entryName("mnuViewAspectOption", i)] = [this, i] { toolbox_->chooseAspect(i); };
    for (int i = 0; i < 2; ++i)
        table[entryName("mnuViewRulerModeOption", i)] = [this, i] { pgPolarGraph().SetRulerMode(i); };
    return table;
}

frmMain::Commands frmMain::optionCommands() {
    Commands table = {
        {"mnuSetSeasons", [this] { frmSetSeasons(host_, this).exec(); }},
        {"mnuSetWindSpeedClasses", [this] { frmSetWindSpeedClasses(host_, this).exec(); }},
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
    };
    for (int i = 0; i < 3; ++i)
        table[entryName("mnuPolarGridOption", i)] = [this, i] { pgPolarGraph().ShowGrid(i); };
    return table;
}

frmMain::Commands frmMain::graphCommands() {
    return {
        {"mnuGraphOption_0", [this] { graphs_->hideSelected(true); }},
        {"mnuGraphOption_1", [this] { graphs_->hideSelected(false); }},
        {"mnuGraphOption_2", [this] { graphs_->deleteSelected(); }},
        {"mnuGraphOption_4", [this] { graphs_->selectAll(); }},
        {"mnuGraphOption_6", [this] { graphs_->playSelected(); }},
        {"mnuGraphOption_7", [this] { pgPolarGraph().StopAni(true); }},
        {"mnuGraphOption_9", [this] { graphs_->showTable(); }},
        {"mnuGraphOption_11", [this] { graphs_->showProperties(); }},
    };
}

frmMain::Commands frmMain::commands() {
    Commands all;
    for (Commands part : {fileCommands(), editCommands(), viewCommands(), optionCommands(), graphCommands()})
        all.merge(part);
    return all;
}

/// Runs the command of an entry whether it is enabled or not; an entry without a command does nothing.
void frmMain::runEntry(const char* name, int index) {
    const auto command = commands_.find(entryName(name, index));
    if (command != commands_.end()) command->second();
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
    // A right click on the corner of the rulers changes the mode too.
    connect(actions_.at("mnuViewRulerMode")->menu(), &QMenu::aboutToShow, this, [this] {
        const bool axis = pgPolarGraph().SetRulerMode() == 0;
        actions_.at(axis ? "mnuViewRulerModeOption_0" : "mnuViewRulerModeOption_1")->setChecked(true);
    });
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
    toolbox_ = std::make_unique<Toolbox>(*this, host_, ui_, actions_, [this] { followSelection(); });
}

void frmMain::selectPage() {
    pressTool(Tool::Select);
    pgPolarGraph().EditSelectAll();
    followSelection();
}

void frmMain::copyTo() {
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

BatchHooks frmMain::batchHooks() {
    return {[this](const std::string& path) { return openFrqFile(path); },
            [this](const std::string& picture) {
                pgPolarGraph().Refresh();
                selectPage();
                pgPolarGraph().EditCopyTo(picture);
            }};
}

void frmMain::showBatchMode() { frmBatchMode(host_, batchHooks(), this).exec(); }

void frmMain::toggleShown(const char* entry, QWidget& bar) {
    bar.setVisible(actions_.at(entry)->isChecked());
}

void frmMain::selectWindRose() {
    if (modPolarGraph.FrqLoaded && modPolarGraph.FrqRoseCount == 0) {
        host_.showBox({"The file has no wind roses: it ends after its header.", "Select Wind Rose to Plot",
                       BoxIcon::Information, BoxButtons::Ok});
        return;
    }
    frmSelectWindRose(host_, pgPolarGraph(), this).exec();
}

void frmMain::viewFrqFile() {
    if (settings.CurrentFrqPath.empty()) return;
    const std::string place = settingsDirectory.empty() ? applicationDirectory : settingsDirectory;
    ViewTextFile(host_, starter_, settings.CurrentFrqPath, place);
}

void frmMain::showAbout(const QString& title) {
    frmAboutZephyrgraph about(this);
    if (!title.isEmpty()) about.setWindowTitle(title);
    about.exec();
}

}  // namespace zg
