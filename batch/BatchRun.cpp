#include "batch/BatchRun.h"

#include "batch/BatchBitmap.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/frq/ValidHours.h"
#include "graph/script/ScriptError.h"
#include "processing/Directories.h"
#include "settings/Settings.h"

namespace zg {

namespace {

constexpr std::size_t extensionLength = 4;  // of ".frq"

/// With many files an error means little without the file's name.
bool open(const std::string& path, const BatchHooks& hooks) {
    try {
        return hooks.openFrqFile();
    } catch (const ScriptError&) {
        throw;  // error in a curve, not in the file
    } catch (RunTimeError& error) {
        error.description += ": " + path;
        if (!error.where.empty()) error.description += ", line " + error.where;
        throw;
    }
}

/// The commands of one run, and the notes about it.
struct Run {
    Host& host;
    const BatchHooks& hooks;
    BatchNotes& notes;
    float limit;
};

void exportRose(const Run& run, int rose) {
    modPolarGraph.CurrentRose = static_cast<std::int16_t>(rose);
    if (!hasEnoughValidHours(modPolarGraph, rose, run.limit)) return run.notes.leftOutRose();
    modPolarGraph.GraphCaption = modPolarGraph.FrqRoseCaption(rose);
    const std::string picture = batchBitmapPath();
    run.hooks.exportRose();
    run.notes.savedRose(rose, picture);
    run.host.pumpEvents(0);
}

void exportRoses(const Run& run, const std::string& path, const std::string& root) {
    settings.BatchFRQFilename = path;
    settings.BatchRootFilename = root;
    try {
        run.notes.tookFile(path, !open(path, run.hooks));
        for (int rose = 1; rose <= modPolarGraph.FrqRoseCount; ++rose) exportRose(run, rose);
    } catch (...) {
        run.notes.brokeOff(path);
        throw;
    }
}

void exportDirectory(const Run& run, const BatchRequest& request) {
    const std::vector<std::string> names = FindFiles("BatchMode", request.directory + "*.frq");
    const int count = fileCounts.BatchFileCount;
    for (int i = 0; i < count; ++i) {
        const std::string& name = names[static_cast<std::size_t>(i)];
        const std::string root = name.substr(0, name.size() - extensionLength) + "_";
        exportRoses(run, request.directory + name, root);
    }
    settings.BatchFRQFilename.clear();
    settings.BatchRootFilename.clear();
    fileCounts.BatchFileCount = 0;
}

/// During its lifetime the open and the save command ask nothing.
class BatchModeOn {
 public:
    explicit BatchModeOn(const std::string& directory) {
        settings.BatchMode = true;
        settings.BatchDirectory = directory;
    }
    ~BatchModeOn() { settings.BatchMode = false; }
    BatchModeOn(const BatchModeOn&) = delete;
    BatchModeOn& operator=(const BatchModeOn&) = delete;
};

}  // namespace

void runBatch(Host& host, const BatchRequest& request, const BatchHooks& hooks, BatchNotes& notes) {
    const BatchModeOn on(request.workDirectory);
    const Run run{host, hooks, notes, request.percentValidLimit};
    if (request.ofDirectory)
        exportDirectory(run, request);
    else
        exportRoses(run, request.file, request.root);
    modPolarGraph.WorkDir = request.workDirectory;
}

}  // namespace zg
