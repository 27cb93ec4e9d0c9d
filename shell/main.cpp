#include <QApplication>
#include <cstdio>
#include <string>
#include <vector>

#include "base/Console.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "base/Version.h"
#include "headers/Stations.h"
#include "platform/Fonts.h"
#include "platform/Memory.h"
#include "platform/QtHost.h"
#include "platform/QtText.h"
#include "shell/ProgramStart.h"
#include "shell/ReadOnlyPlace.h"
#include "shell/StartSequence.h"

namespace {

/// Needs no display, and is used where there is none.
bool isAnswered(const std::string& word) {
    if (word == "--version") std::printf("zephyrgraph %s\n", zg::versionNumber);
    if (word == "--help")
        std::puts(
            "usage: zephyrgraph [FILE.frq]\n"
            "       zephyrgraph --help | --version\n\n"
            "Draws wind roses of FRQ files and curves r = f(t) in a window. Without one: "
            "zephyrgraph-export.");
    return word == "--version" || word == "--help";
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words = zg::programWords(argc, argv);
    const std::string word = words.size() == 1 ? words[0] : "";
    if (isAnswered(word)) return 0;
    zg::useMemorySparingly();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zephyrgraph"));
    zg::applicationDirectory = zg::filePath(QCoreApplication::applicationDirPath());
    zg::useFontsBeside(zg::applicationDirectory);
    zg::QtHost host;
    zg::chooseSettingsDirectory(zg::userConfigDirectory());
    zg::startSettings();
    zg::LoadStationData();
    const std::string file = zg::wholePath(word);
    return zg::runProgram(host, file.empty() ? word : file);
}
