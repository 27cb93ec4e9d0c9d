#include "shell/FrmMain.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimer>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Errors.h"
#include "platform/Memory.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmComment.h"
#include "shell/MenuTree.h"
#include "shell/Resources.h"
#include "shell/StartSequence.h"
#include "shell/WindowPlace.h"

namespace zg {

namespace {

constexpr QSize swatchPixels(46, 18);

}  // namespace

frmMain::frmMain(Host& host) : host_(host) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Zephyrgraph"));
    setWindowIcon(programIcon("zephyrgraph"));
    ui_ = makeFrmMainControls(*this, host, modPolarGraph);
    makeMenus();
    makeToolbars();
    graphs_ = std::make_unique<GraphList>(
        *this, host, ui_, actions_,
        GraphListHooks{[this] { pressTool(Tool::Arrow); }, [this](bool value) { lockWhileDrawing(value); },
                       [this](const GrapInfo& graph) { beginProgress(graph); }});
    followPlot();
    pgPolarGraph().shrinkTexts(true);
    pgPolarGraph().keepPageCentred();
    makeHabits();
    if (const QScreen* on = screen()) resize(startSizeOn(on->availableSize()));
}

void frmMain::Form_Load() {
    actions_.at("mnuFileOption_6")->setText(QStringLiteral("Process Monitor Met. Data"));
    settings.DebugFlag = true;
    ReadCfgFile(settings.CfgFilePath);
    modPolarGraph.FrqLoaded = false;
    SizeLegendSwatch();
    for (ColourBox* box : ui_.picColor)
        box->setCursor(programCursor(static_cast<int>(ToolCursor::ColourBox)));
    if (const auto picture = findBackgroundPicture()) {
        LoadBackgroundPicture(FileNameOf(picture->path));
        pgPolarGraph().PictureStyle(picture->style);
    }
    {
        const QSignalBlocker quiet(ui_.lstAspect);
        ui_.lstAspect->setCurrentRow(0);
    }
    ui_.lstZoom->setCurrentRow(settings.ZoomListIndex);
    pgPolarGraph().Zoom(toInt16(startZoom()));
    if (const auto radius = startRadius()) pgPolarGraph().Polar().Radius = toSingle(*radius);
    clearLabelLines();
    resetWindClassMin();
    pgPolarGraph().Refresh();  // set the radius and the labels without separate repaints
}

void frmMain::SizeLegendSwatch() { graphs_->swatchSize = swatchPixels; }

bool frmMain::LoadBackgroundPicture(const std::string& name) {
    const std::string path = backgroundPicturePath(name);
    if (path.empty()) return false;
    pgPolarGraph().Picture(loadPicture(path));
    return true;
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!pgPolarGraph().StopAni()) pgPolarGraph().StopAni(true);
    ending_ = true;  // abandon a run that waits for its processor
    // Nobody would see what still waits to be drawn.
    pgPolarGraph().suspendUpdates(true);
    event->accept();
}

/// Escape stops drawing, wherever in the window the focus is.
void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !pgPolarGraph().StopAni())
        pgPolarGraph().StopAni(true);
    else
        QMainWindow::keyPressEvent(event);
}

void frmMain::PlotFrqFile(const std::string& path) {
    QString name = shown(FileNameOf(path));
    // The toolkit shows its mark of changes for a single one.
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(QStringLiteral("Zephyrgraph - ") + name);
    settings.CurrentFrqPath = path;
    pgPolarGraph().OpenFreqFile(path);
    if (pgPolarGraph().lastOpenOutcome() != FreqFileOutcome::Loaded) return;
    ui_.pgPolarGraph->setInvitation({});
    graphs_->listPlot();
    pgPolarGraph().DrawGraph();
    if (!pgPolarGraph().Comment().empty()) frmComment(host_, pgPolarGraph(), this).exec();
    graphs_->selectOnly(0);
    // After the file dialog has been closed and its memory is no longer in use.
    QTimer::singleShot(0, this, [] { giveBackMemory(); });
}

std::string frmMain::askForFrqFile() {
    FilePick pick;
    pick.filter = "Frequency File (*.frq) | *.frq; |All Files (*.*) | *.*";
    pick.directory = modPolarGraph.WorkDir;
    return host_.pickFileToOpen(pick);
}

/// Shows that file, and the next file dialog starts in its directory; does nothing for an empty path. False
/// if the file was refused.
bool frmMain::openFrqFile(const std::string& path) {
    if (path.empty()) return false;
    modPolarGraph.WorkDir = DirOf(path);
    // Only the first character is checked, so nearly every directory gets a final separator here.
    if (modPolarGraph.WorkDir.substr(0, 1) != "\\") modPolarGraph.WorkDir += pathSeparator;
    PlotFrqFile(path);
    return pgPolarGraph().lastOpenOutcome() == FreqFileOutcome::Loaded;
}

}  // namespace zg
