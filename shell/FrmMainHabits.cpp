// What people expect of any window: files dropped on it, the usual keys, the wheel, recent files.

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QTimer>
#include <QUrl>
#include <optional>

#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/RecentFiles.h"
#include "windtable/TableGuess.h"

namespace zg {

namespace {

/// The one local file that is dragged; "" for anything else.
std::string draggedFile(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 && urls.constFirst().isLocalFile() ? filePath(urls.constFirst().toLocalFile())
                                                               : std::string();
}

bool isTableOfWinds(const std::string& path, std::string_view firstLine) {
    try {
        return isIsdLiteLine(firstLine) || hasTableHead(path);
    } catch (const RunTimeError&) {
        return false;  // a line that is too long for a table
    }
}

/// The kind of a raw file by its first line, else by its name, else by its columns; nothing for a frequency
/// file and for a file of no such kind.
std::optional<InputKind> droppedKind(const std::string& path) {
    LineReader lines(path);
    const std::string start = ucase(trimmed(lines.ahead().substr(0, lines.ahead().find_first_of("\r\n"))));
    if (start.starts_with("WIND.FRQ")) return std::nullopt;
    for (const Format& format : formats())
        if (!format.firstWord.empty() && start.starts_with(format.firstWord)) return format.kind;
    if (start.find("DATETIME") != std::string::npos && start.find("STNCODE") != std::string::npos)
        return InputKind::MonitorW;
    const std::string name = lcase(path);
    if (name.ends_with(".sfc")) return InputKind::AermSfc;
    if (name.ends_with(".pfl")) return InputKind::AermPfl;
    if (isTableOfWinds(path, start)) return InputKind::Csv;
    if (name.ends_with(".csv")) return InputKind::MonitorW;  // whose dialog tells what is wrong
    return std::nullopt;
}

}  // namespace

void frmMain::makeHabits() {
    setAcceptDrops(true);
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
        connect(menu->addAction(caption), &QAction::triggered, this,
                guarded(host_, [this, path] { chooseFrqFile(path); }));
    }
    if (menu->isEmpty()) menu->addAction(QStringLiteral("No file has been opened yet"))->setEnabled(false);
}

/// A frequency file is plotted; for raw data their dialog opens with the file chosen, but a table of winds,
/// which has no dialog, is only named.
void frmMain::openDropped(const std::string& path) {
    if (const auto kind = droppedKind(path))
        processRawFile(path, *kind);
    else
        chooseFrqFile(path);
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedFile(*event).empty() && actions_.at("mnuFileOption_1")->isEnabled())
        event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
    const std::string path = draggedFile(*event);
    if (path.empty() || !actions_.at("mnuFileOption_1")->isEnabled()) return;
    event->acceptProposedAction();
    // The program from which it comes waits until this returns, and a box may be shown.
    QTimer::singleShot(0, this, guarded(host_, [this, path] { openDropped(path); }));
}

}  // namespace zg
