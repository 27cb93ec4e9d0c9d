#include "shell/ProgramStart.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTimer>
#include <memory>

#include "platform/Errors.h"
#include "platform/QtText.h"
#include "shell/FrmMain.h"
#include "shell/FrmSplashScreen.h"
#include "shell/ReadOnlyPlace.h"
#include "shell/WindowPlace.h"

namespace zg {

std::string userConfigDirectory() {
    return filePath(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}

int runProgram(Host& host, const std::string& frqFile) {
    std::unique_ptr<frmMain> window;
    std::unique_ptr<WindowPlace> place;
    const auto showMain = [&host, &window, &place, &frqFile] {
        window = std::make_unique<frmMain>(host);
        guarded(host, [&window] { window->Form_Load(); })();
        place = std::make_unique<WindowPlace>(*window);
        window->show();
        // After the splash has closed.
        QTimer::singleShot(0, window.get(),
                           guarded(host, [&host] { tellReadOnlyPlace(host, userConfigDirectory()); }));
        if (frqFile.empty()) return;
        QTimer::singleShot(0, window.get(),
                           guarded(host, [&window, &frqFile] { window->PlotFrqFile(frqFile); }));
    };
    frmSplashScreen splash(host, showMain);
    splash.run();
    // An end before the event loop has started would not stop the loop.
    const bool goesOn = window && window->isVisible() && !window->ending();
    return goesOn ? QApplication::exec() : 0;
}

}  // namespace zg
