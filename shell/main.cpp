#include <QApplication>
#include <cstdio>
#include <string>

#include "base/Paths.h"
#include "base/Version.h"
#include "headers/Stations.h"
#include "platform/Memory.h"
#include "platform/QtHost.h"
#include "platform/QtText.h"
#include "shell/ProgramStart.h"
#include "shell/StartSequence.h"

namespace {

/// Needs no display, and is used where there is none.
bool isAnswered(int argc, char** argv) {
    const std::string word = argc == 2 ? argv[1] : "";
    if (word == "--version") std::printf("zephyrgraph %s\n", zg::versionNumber);
    if (word == "--help")
        std::puts(
            "usage: zephyrgraph\n"
            "       zephyrgraph --help | --version\n\n"
            "Draws wind roses of FRQ files and curves r = f(t) in a window. Without one: "
            "zephyrgraph-export.");
    return word == "--version" || word == "--help";
}

}  // namespace

int main(int argc, char** argv) {
    if (isAnswered(argc, argv)) return 0;
    zg::useMemorySparingly();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zephyrgraph"));
    zg::applicationDirectory = zg::filePath(QCoreApplication::applicationDirPath());
    zg::QtHost host;
    zg::startSettings();
    zg::LoadStationData();
    return zg::runProgram(host);
}
