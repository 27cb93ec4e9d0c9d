#include "shell/WindowPlace.h"

#include <QEvent>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "settings/WholeText.h"

namespace zg {

namespace {

constexpr int restMilliseconds = 400;

std::string placePath() { return inSettingsDirectory("window.txt"); }

/// As saved by the toolkit, which also checks it; empty if there is none.
QByteArray savedPlace() {
    try {
        return QByteArray::fromBase64(QByteArray::fromStdString(readWholeFile(placePath())));
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace

QSize startSizeOn(const QSize& available) {
    const QSize wholePage(740, 880);
    const QSize part(available.width() * 54 / 100, available.height() * 85 / 100);
    return wholePage.expandedTo(part).boundedTo(available - QSize(40, 60));
}

WindowPlace::WindowPlace(QWidget& window) : window_(window) {
    window.restoreGeometry(savedPlace());
    window.installEventFilter(this);
    atRest_.setSingleShot(true);
    atRest_.setInterval(restMilliseconds);
    connect(&atRest_, &QTimer::timeout, this, [this] { write(); });
}

bool WindowPlace::eventFilter(QObject*, QEvent* event) {
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize ||
                       event->type() == QEvent::WindowStateChange;
    if (moved && window_.isVisible()) atRest_.start();
    return false;
}

void WindowPlace::write() {
    if (window_.isVisible()) replaceFile(placePath(), window_.saveGeometry().toBase64().toStdString());
}

}  // namespace zg
