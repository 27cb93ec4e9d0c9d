#include <QApplication>

#include "base/Paths.h"
#include "platform/Memory.h"
#include "platform/QtHost.h"
#include "platform/QtText.h"
#include "processing/Stations.h"
#include "shell/ProgramStart.h"
#include "shell/settings/StartSequence.h"

int main(int argc, char** argv) {
    zg::useMemorySparingly();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zephyrgraph"));
    zg::applicationDirectory = zg::filePath(QCoreApplication::applicationDirPath());
    zg::QtHost host;
    zg::startSettings();
    zg::LoadStationData();
    return zg::runProgram(host);
}
