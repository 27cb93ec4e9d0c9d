#include <QApplication>
#include <QStandardPaths>
#include <QTimer>
#include <memory>

#include "base/Paths.h"
#include "platform/Errors.h"
#include "platform/Memory.h"
#include "platform/QtHost.h"
#include "platform/QtText.h"
#include "processing/Stations.h"
#include "shell/FrmMain.h"
#include "shell/FrmSplashScreen.h"
#include "shell/ReadOnlyPlace.h"
#include "shell/settings/StartSequence.h"

int main(int argc, char** argv) {
    zg::useMemorySparingly();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zephyrgraph"));
    zg::applicationDirectory = zg::filePath(QCoreApplication::applicationDirPath());
    zg::QtHost host;

    std::unique_ptr<zg::frmMain> window;
    const auto showMain = [&host, &window] {
        window = std::make_unique<zg::frmMain>(host);
        zg::guarded(host, [&window] { window->Form_Load(); })();
        window->show();
        // After the splash has gone.
        QTimer::singleShot(0, window.get(), zg::guarded(host, [&host] {
                               const auto notes = QStandardPaths::AppConfigLocation;
                               zg::tellReadOnlyPlace(host,
                                                     zg::filePath(QStandardPaths::writableLocation(notes)));
                           }));
    };
    zg::startSettings();
    zg::LoadStationData();
    zg::frmSplashScreen splash(host, showMain);
    splash.run();
    // A window closed while the splash still waits has ended the program already.
    return window && window->isVisible() ? QApplication::exec() : 0;
}
