// Roses per second: the batch export of the window, and the companion with one and two jobs, as BMP and as
// PNG. The counter is the resident memory at the end.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/Paths.h"
#include "batch/BatchRun.h"
#include "export/ExportRoses.h"
#include "platform/QtHost.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"

namespace {

namespace fs = std::filesystem;

const fs::path scratch = fs::temp_directory_path() / "zephyrgraph-export-bench";

/// A directory with this many roses, nine per file.
std::string inputs(int roses) {
    const fs::path directory = scratch / ("in" + std::to_string(roses));
    fs::create_directories(directory);
    for (int i = 0; i * 9 < roses; ++i)
        fs::copy_file(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq",
                      directory / ("f" + std::to_string(1000 + i) + ".frq"),
                      fs::copy_options::overwrite_existing);
    return directory.string() + "/";
}

double residentMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmRSS:", 0) == 0) return std::stod(line.substr(6)) / 1024;
    return 0;
}

void window(benchmark::State& state) {
    zg::QtHost host;
    zg::frmMain main(host);
    main.show();
    main.pgPolarGraph().Zoom(100);
    zg::BatchRequest request;
    request.ofDirectory = true;
    request.directory = inputs(static_cast<int>(state.range(0)));
    request.workDirectory = (scratch / "out").string() + "/";
    fs::create_directories(request.workDirectory);
    const zg::BatchHooks hooks = main.batchHooks();
    for (auto _ : state) {
        zg::BatchNotes notes;
        zg::runBatch(host, zg::modPolarGraph, request, hooks, notes);
    }
    state.SetItemsProcessed(state.iterations() * (state.range(0) + 8) / 9 * 9);
    state.counters["MB"] = residentMegabytes();
}
BENCHMARK(window)->Arg(64)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void companion(benchmark::State& state) {
    zg::ExportJob job;
    job.inputs = {inputs(static_cast<int>(state.range(1)))};
    job.format = state.range(2) == 0 ? "bmp" : "png";
    job.directory = (scratch / "companion").string();
    job.jobs = static_cast<int>(state.range(0));
    for (auto _ : state) {
        std::ostringstream out;
        std::ostringstream errors;
        if (zg::runExport(job, out, errors) != zg::exportDone) state.SkipWithError(errors.str().c_str());
    }
    state.SetItemsProcessed(state.iterations() * (state.range(1) + 8) / 9 * 9);
    state.counters["MB"] = residentMegabytes();
}
BENCHMARK(companion)
    ->ArgsProduct({{1, 2}, {64, 180, 1000}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(2);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    fs::remove_all(scratch);
    return 0;
}
