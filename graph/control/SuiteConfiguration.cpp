#include "graph/control/SuiteConfiguration.h"

#include <exception>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace zg {

namespace {

void readWorkDirOf(const std::string& file, std::string& workDir) {
    LineReader reader(file);
    while (!reader.atEnd()) {
        const Pieces pieces = split(reader.readLine(), "=");
        if (pieces.size() < 2 || trimmed(pieces[0]) != "WorkDir") continue;
        workDir = trim(pieces[1]);
        return;
    }
}

}  // namespace

void readSuiteWorkDir(const std::string& path, std::string& workDir) {
    const std::string file = existingFile(path);
    if (file.empty()) {
        workDir.clear();
        return;
    }
    try {
        readWorkDirOf(file, workDir);
    } catch (const std::exception&) {
        return;  // the program starts without it
    }
}

}  // namespace zg
