#include "batch/BatchRun.h"

#include "base/Numbers.h"
#include "graph/frq/ModPolarGraph.h"
#include "processing/Directories.h"
#include "shell/settings/Settings.h"

namespace zg {

namespace {

constexpr std::size_t extensionLength = 4;  // of ".frq"

/// Version 2.0 knows no percent of valid hours; what is older than 2.1 otherwise is not exported at all.
bool isExported(int rose, float limit) {
    if (modPolarGraph.FrqVersion == "2.0") return true;
    if (toSingle(modPolarGraph.FrqVersion) < 2.1F) return false;
    return !(modPolarGraph.FrqPercentValid(rose) < limit);
}

void exportRoses(Host& host, const std::string& path, const std::string& root, float limit,
                 const BatchHooks& hooks) {
    settings.BatchFRQFilename = path;
    settings.BatchRootFilename = root;
    hooks.openFrqFile();
    for (int rose = 1; rose <= modPolarGraph.FrqRoseCount; ++rose) {
        modPolarGraph.CurrentRose = static_cast<std::int16_t>(rose);
        if (!isExported(rose, limit)) continue;
        modPolarGraph.GraphCaption = modPolarGraph.FrqRoseCaption(rose);
        hooks.exportRose();
        host.pumpEvents(0);
    }
}

void exportDirectory(Host& host, const BatchRequest& request, const BatchHooks& hooks) {
    const std::vector<std::string> names = FindFiles("BatchMode", request.directory + "*.frq");
    const int count = fileCounts.BatchFileCount;
    for (int i = 0; i < count; ++i) {
        const std::string& name = names[static_cast<std::size_t>(i)];
        const std::string root = name.substr(0, name.size() - extensionLength) + "_";
        exportRoses(host, request.directory + name, root, request.percentValidLimit, hooks);
    }
    settings.BatchFRQFilename.clear();
    settings.BatchRootFilename.clear();
    fileCounts.BatchFileCount = 0;
}

/// While one is there the open and the save command ask nothing.
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

void runBatch(Host& host, const BatchRequest& request, const BatchHooks& hooks) {
    const BatchModeOn on(request.workDirectory);
    if (request.ofDirectory)
        exportDirectory(host, request, hooks);
    else
        exportRoses(host, request.file, request.root, request.percentValidLimit, hooks);
    modPolarGraph.WorkDir = request.workDirectory;
}

}  // namespace zg
