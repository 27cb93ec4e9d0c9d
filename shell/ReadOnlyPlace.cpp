#include "shell/ReadOnlyPlace.h"

#include <cstdio>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "settings/WholeText.h"

namespace zg {

namespace {

bool wasTold(const std::string& notes) {
    try {
        for (LineReader lines(notes); !lines.atEnd();)
            if (lines.readLine() == applicationDirectory) return true;
    } catch (const RunTimeError&) {
        return false;  // no notes yet
    }
    return false;
}

void noteAsTold(const std::string& notes) {
    try {
        const std::string before = fileExists(notes) ? readWholeFile(notes) : std::string();
        LineWriter file(notes);
        file.write(before);
        file.writeLine(applicationDirectory);
        file.close();
    } catch (const RunTimeError&) {
        return;  // the user is told again at the next start
    }
}

std::string whatHappensInstead() {
    if (!settingsDirectory.empty()) return "They are kept in " + settingsDirectory + " instead.";
    return "The program works all the same; changes of these are lost when it ends. Results go to the "
           "directories you choose. A copy of the program in a directory of your own keeps them.";
}

/// A copy of a file that lies beside the program, unless the user has one already.
void takeOver(const char* name) {
    const std::string delivered = inApplicationDirectory(name);
    if (!fileExists(delivered) || fileExists(inSettingsDirectory(name))) return;
    try {
        replaceFile(inSettingsDirectory(name), readWholeFile(delivered));
    } catch (const RunTimeError&) {
        return;  // it cannot be read: the factory values take its place
    }
}

}  // namespace

bool canWriteIn(const std::string& directory) {
    const std::string path = withSeparator(directory) + "zephyrgraph-can-write.tmp";
    std::FILE* file = openStream(path, "wb");
    if (file == nullptr) return false;
    const bool whole = std::fputc('x', file) != EOF;
    const bool closed = std::fclose(file) == 0;
    removeFile(path);
    return whole && closed;
}

void chooseSettingsDirectory(const std::string& userDirectory) {
    settingsDirectory.clear();
    if (canWriteIn(applicationDirectory)) return;
    makeDirectories(userDirectory);
    if (!canWriteIn(userDirectory)) return;
    settingsDirectory = userDirectory;
    for (const char* name : {"Zephyrgraph.cfg", "expr.dat"}) takeOver(name);
}

void tellReadOnlyPlace(Host& host, const std::string& notesDirectory) {
    if (canWriteIn(applicationDirectory)) return;
    const std::string notes = withSeparator(notesDirectory) + "told-places";
    if (wasTold(notes)) return;
    host.showBox(
        {"Zephyrgraph keeps its settings, expressions and background pictures beside itself, but files "
         "cannot be made in " +
             applicationDirectory + ".\n\n" + whatHappensInstead(),
         "", BoxIcon::Information, BoxButtons::Ok});
    makeDirectories(notesDirectory);
    noteAsTold(notes);
}

}  // namespace zg
