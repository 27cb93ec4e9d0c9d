#pragma once

#include <QTimer>
#include <QWidget>

namespace zg {

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
