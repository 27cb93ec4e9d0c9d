#pragma once

#include <QTimer>
#include <QWidget>

namespace zg {

/// The size of the main window at its first start: the whole page is visible if the screen is large enough,
/// and on a larger one the window is larger too. The argument is what the desktop leaves free of the screen.
QSize startSizeOn(const QSize& available);

/// Keeps the place and the size of a window from one start to the next, in window.txt in settingsDirectory.
/// It is written when the window has come to rest, not when the program ends.
class WindowPlace : public QObject {
 public:
    /// Puts the window where it was; without a usable file it stays where it is.
    explicit WindowPlace(QWidget& window);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void write();

    QWidget& window_;
    QTimer atRest_;
};

}  // namespace zg
