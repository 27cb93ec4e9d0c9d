// What people expect of any window: files dropped on it, the usual keys, the wheel, recent files.

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QTimer>
#include <QUrl>
#include <vector>

#include "base/Paths.h"
#include "batch/FrmBatchMode.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "settings/Settings.h"
#include "shell/DroppedFiles.h"
#include "shell/FrmGuide.h"
#include "shell/FrmMain.h"
#include "shell/RecentFiles.h"

namespace zg {

namespace {

/// The local files that are dragged; none if anything else is among them.
std::vector<std::string> draggedFiles(const QDropEvent& event) {
    std::vector<std::string> paths;
    for (const QUrl& url : event.mimeData()->urls()) {
        if (!url.isLocalFile()) return {};
        paths.push_back(filePath(url.toLocalFile()));
    }
    return paths;
}

}  // namespace

void frmMain::makeHabits() {
    setAcceptDrops(true);
    QCoreApplication::instance()->installEventFilter(this);
    // The entry has no key of its own in the menu. While it is disabled, triggering it does nothing.
    auto* openKey = new QShortcut(QKeySequence(QKeySequence::Open), this);
    connect(openKey, &QShortcut::activated, actions_.at("mnuFileOption_1"), &QAction::trigger);
    connect(ui_.pgPolarGraph, &PolarGraphWidget::zoomTurned, this, guarded(host_, [this](int direction) {
                if (actions_.at("mnuViewZoomSize_0")->isEnabled()) toolbox_->turnZoom(direction);
            }));
    QToolButton* open = ui_.toolbarButtons.at("open");
    auto* recent = new QMenu(open);
    recent->setObjectName(QStringLiteral("recentFiles"));
    connect(recent, &QMenu::aboutToShow, this, guarded(host_, [this] { showRecentFiles(); }));
    open->setMenu(recent);
    open->setPopupMode(QToolButton::MenuButtonPopup);
    ui_.pgPolarGraph->setInvitation(QStringLiteral("Open a frequency file, or drop one here"));
}

/// F1 is for the guide in every window of the program, so no window gets it.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
    if (!key->isAutoRepeat()) guarded(host_, [this] { showGuide(); })();
    return true;
}

/// A dialog that is open leaves the keyboard only to its own windows.
void frmMain::showGuide() {
    const std::string path = inApplicationDirectory("docs") + pathSeparator + "guide.md";
    if (!fileExists(path)) {
        host_.showBox(
            {"The user guide is missing: " + path, "User Guide", BoxIcon::Information, BoxButtons::Ok});
        return;
    }
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget* parent = dialog == nullptr ? this : dialog;
    if (guide_ && guide_->parentWidget() != parent) {
        // It may be the receiver of the key that brought us here.
        guide_->hide();
        guide_->deleteLater();
        guide_.clear();
    }
    if (!guide_) {
        guide_ = new frmGuide(path, parent);
        guide_->setAttribute(Qt::WA_DeleteOnClose);
    }
    guide_->show();
    guide_->raise();
    guide_->activateWindow();
}

/// Opens a file that the user has chosen, as a batch of them is not.
void frmMain::chooseFrqFile(const std::string& path) {
    if (openFrqFile(path) && !settings.BatchMode) rememberFile(path);
}

void frmMain::showRecentFiles() {
    QMenu* menu = ui_.toolbarButtons.at("open")->menu();
    menu->clear();
    for (const std::string& path : recentFiles()) {
        QString caption = shown(path);
        caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
        caption.replace(QLatin1Char('\t'), QLatin1Char(' '));  // what follows it would be the entry's key
        connect(menu->addAction(caption), &QAction::triggered, this,
                guarded(host_, [this, path] { chooseFrqFile(path); }));
    }
    if (menu->isEmpty()) menu->addAction(QStringLiteral("No file has been opened yet"))->setEnabled(false);
}

/// A frequency file is plotted, and several are for batch mode. For raw data their dialog opens with the file
/// chosen, for gridded data the wizard with all of them; a table of winds, which has no dialog, is only
/// named.
void frmMain::openDropped(const std::vector<std::string>& paths) {
    if (const auto batch = droppedBatch(paths)) {
        frmBatchMode form(host_, batchHooks(), this);
        form.openDirectory(batch->directory, batch->note);
        form.exec();
    } else if (paths.size() > 1 && !commonGriddedKind(paths)) {
        host_.showBox(
            {"Several files can be dropped together if they are FRQ files of one directory (batch mode) or "
             "the 3D.DAT or VENTOS.DAT files of one run. Please drop other files one by one.",
             "Open", BoxIcon::Information, BoxButtons::Ok});
    } else if (const auto kind = droppedKind(paths.front())) {
        processRawFiles(paths, *kind);
    } else {
        chooseFrqFile(paths.front());
    }
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedFiles(*event).empty() && actions_.at("mnuFileOption_1")->isEnabled())
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
    const std::vector<std::string> paths = draggedFiles(*event);
    if (paths.empty() || !actions_.at("mnuFileOption_1")->isEnabled()) return;
    event->acceptProposedAction();
    // The program from which it comes waits until this returns, and a box may be shown.
    QTimer::singleShot(0, this, guarded(host_, [this, paths] { openDropped(paths); }));
}

}  // namespace zg
