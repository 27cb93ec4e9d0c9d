#include "batch/BatchRun.h"

#include "base/AtEnd.h"
#include "batch/BatchBitmap.h"
#include "graph/frq/ValidHours.h"
#include "graph/script/ScriptError.h"
#include "processing/Directories.h"
#include "settings/Settings.h"

namespace zg {

namespace {

constexpr std::size_t extensionLength = 4;  // of ".frq"

/// The commands of one run, and the notes about it.
struct Run {
    Host& host;
    ModPolarGraph& tables;
    const BatchRequest& request;
    const BatchHooks& hooks;
    BatchNotes& notes;
};

/// With many files an error means little without the file's name.
bool open(const Run& run, const std::string& path) {
    try {
        return run.hooks.openFrqFile(path);
    } catch (const ScriptError&) {
        throw;  // error in a curve, not in the file
    } catch (RunTimeError& error) {
        error.description += ": " + path;
        if (!error.where.empty()) error.description += ", line " + error.where;
        error.file.clear();  // it is told already, with its directory
        throw;
    }
}

void exportRose(const Run& run, const std::string& root, int rose) {
    ModPolarGraph& tables = run.tables;
    tables.CurrentRose = static_cast<std::int16_t>(rose);
    if (!hasEnoughValidHours(tables, rose, run.request.percentValidLimit)) return run.notes.leftOutRose();
    tables.GraphCaption = tables.FrqRoseCaption(rose);
    const std::string picture = batchBitmapPath(run.request.workDirectory, root, tables.FrqRoseTitle(rose));
    run.hooks.saveRose(picture);
    run.notes.savedRose(rose, picture);
    run.host.pumpEvents(0);
}

void exportRoses(const Run& run, const std::string& path, const std::string& root) {
    settings.BatchFRQFilename = path;
    settings.BatchRootFilename = root;
    try {
        run.notes.tookFile(path, !open(run, path));
        for (int rose = 1; rose <= run.tables.FrqRoseCount; ++rose) exportRose(run, root, rose);
    } catch (...) {
        run.notes.brokeOff(path);
        throw;
    }
}

void exportDirectory(const Run& run) {
    const std::string& directory = run.request.directory;
    const std::vector<std::string> names = FindFiles("BatchMode", directory + "*.frq");
    const int count = fileCounts.BatchFileCount;
    for (int i = 0; i < count; ++i) {
        const std::string& name = names[static_cast<std::size_t>(i)];
        exportRoses(run, directory + name, name.substr(0, name.size() - extensionLength) + "_");
    }
    settings.BatchFRQFilename.clear();
    settings.BatchRootFilename.clear();
    fileCounts.BatchFileCount = 0;
}

}  // namespace

void runBatch(Host& host, ModPolarGraph& tables, const BatchRequest& request, const BatchHooks& hooks,
              BatchNotes& notes) {
    const AtEnd over([] { settings.BatchMode = false; });
    settings.BatchMode = true;
    settings.BatchDirectory = request.workDirectory;
    const Run run{host, tables, request, hooks, notes};
    if (request.ofDirectory)
        exportDirectory(run);
    else
        exportRoses(run, request.file, request.root);
    tables.WorkDir = request.workDirectory;
}

}  // namespace zg
