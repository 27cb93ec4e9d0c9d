#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>

#include "base/Host.h"

namespace zg {

/// Shows the program's name for a moment. Then, or on a click at once, the main window appears, once. Closing
/// the splash is not a click: the main window appears when the time is over.
class frmSplashScreen : public QWidget {
    Q_OBJECT

 public:
    frmSplashScreen(Host& host, std::function<void()> showMain);

    /// Shows itself and waits, serving events, until its time is over or it was clicked.
    void run();

    bool splashClicked() const { return SplashClicked; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

 private:
    void unloadAndShowMain();

    Host& host_;
    std::function<void()> showMain_;
    QLabel* lblVersion;
    QLabel* lblLevel;
    bool SplashClicked = false;
};

constexpr int splashMilliseconds = 1750;

}  // namespace zg
