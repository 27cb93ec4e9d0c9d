#include "shell/FrmMain.h"

#include <QCoreApplication>
#include <QMenuBar>

#include "base/Paths.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "shell/MenuTree.h"
#include "shell/Resources.h"

namespace zg {

namespace {

/// Properties of the control that the window is designed with.
PropertyBag designedProperties() {
    PropertyBag bag;
    bag.WriteProperty("Zoom", "100");
    bag.WriteProperty("OffsetDrawingAreaX", "10");
    bag.WriteProperty("OffsetDrawingAreaY", "10");
    return bag;
}

}  // namespace

frmMain::frmMain(Host& host)
    : host_(host), pgPolarGraph_(new PolarGraphWidget(host, designedProperties(), this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Zephyrgraph"));
    setWindowIcon(programIcon("zephyrgraph"));
    pgPolarGraph_->setObjectName(QStringLiteral("pgPolarGraph"));
    setCentralWidget(pgPolarGraph_);
    makeMenus();
    resize(640, 670);
}

void frmMain::makeMenus() {
    actions_ = buildMenus(*menuBar());
    const std::map<std::string, std::function<void()>> commands = {
        {"mnuFileOption_1", [this] { mnuFileOption_Click(1); }},
        {"mnuFileOption_18", [this] { mnuFileOption_Click(18); }},
    };
    for (const MenuEntry& entry : menuTree()) {
        if (entry.kind == EntryKind::Menu || entry.kind == EntryKind::Separator) continue;
        QAction* action = actions_.at(entry.name);
        const auto command = commands.find(entry.name);
        if (command == commands.end())
            action->setEnabled(false);
        else
            connect(action, &QAction::triggered, this, guarded(host_, command->second));
    }
}

QAction* frmMain::menuAction(const std::string& name) const {
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

void frmMain::mnuFileOption_Click(int Index) {
    if (Index == 1) openFrqFile();
    if (Index == 18) QCoreApplication::exit();
}

void frmMain::openFrqFile() {
    FilePick pick;
    pick.filter = "Frequency File (*.frq) | *.frq; |All Files (*.*) | *.*";
    pick.directory = modPolarGraph.WorkDir;
    const std::string path = host_.pickFileToOpen(pick);
    if (path.empty()) return;
    modPolarGraph.WorkDir = DirOf(path);
    // Only the first character is looked at: nearly every directory gets its final separator this way.
    if (modPolarGraph.WorkDir.substr(0, 1) != "\\") modPolarGraph.WorkDir += pathSeparator;
    PlotFrqFile(path);
}

void frmMain::PlotFrqFile(const std::string& path) {
    setWindowTitle(QStringLiteral("Zephyrgraph - ") + shown(FileNameOf(path)));
    pgPolarGraph_->graph().OpenFreqFile(path);
}

}  // namespace zg
