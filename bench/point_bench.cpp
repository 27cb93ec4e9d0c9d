// Half a gigabyte of monitor and AERMET records, skipped to reach the last line, compared with counting its
// lines by wc.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "headers/AermetPeriod.h"
#include "headers/MonitorHeader.h"

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t fileBytes = 500'000'000;
const fs::path scratch = fs::temp_directory_path() / "zephyrgraph-point-bench";

/// A file with a header and one record repeated.
std::string largeFile(const char* name, const std::string& head, const std::string& record) {
    fs::create_directories(scratch);
    const std::string path = (scratch / name).string();
    if (fs::exists(path)) return path;
    std::string block;
    while (block.size() < 1'000'000) block += record;
    std::ofstream file(path, std::ios::binary);
    file << head;
    for (std::int64_t bytes = 0; bytes < fileBytes; bytes += static_cast<std::int64_t>(block.size()))
        file << block;
    return path;
}

std::string monitorFile() {
    return largeFile("m.csv", "DATETIME,DATAAVID,STNCODE,WDIR,WSPD\r\n",
                     "12/31/2005 23:00:00,60,ALBANY01,271.5,3.25\r\n");
}

std::string surfaceFile() {
    return largeFile("a.sfc", "41.3N 74.0W UA_ID: 14735 SF_ID: 14735 OS_ID: L VERSION: 1\r\n",
                     "88 12 31 366 24 -0.1 0.011 -9.000 -9.000 -999. 3. 1.5 0.0010 0.10 1.00 0.60 138.5 50.0 "
                     "273.9 10.0 99 -9.00 75. 1014. 0 NAD-OS NoSubs\r\n");
}

double residentMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmHWM:", 0) == 0) return std::stod(line.substr(6)) / 1024;
    return 0;
}

void finish(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * fileBytes);
    state.counters["MB"] = residentMegabytes();
}

void monitor(benchmark::State& state) {
    const std::string path = monitorFile();
    for (auto _ : state) {
        zg::HeaderSource source(path);
        benchmark::DoNotOptimize(zg::readMonitorHeader(source));
    }
    finish(state);
}
BENCHMARK(monitor)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void surface(benchmark::State& state) {
    const std::string path = surfaceFile();
    for (auto _ : state) {
        zg::HeaderSource source(path);
        benchmark::DoNotOptimize(zg::readAermetPeriod(source, zg::InputKind::AermSfc));
    }
    finish(state);
}
BENCHMARK(surface)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void countLines(benchmark::State& state) {
    const std::string command = "wc -l " + monitorFile() + " >/dev/null";
    for (auto _ : state)
        if (std::system(command.c_str()) != 0) state.SkipWithError("wc failed");
    finish(state);
}
BENCHMARK(countLines)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    fs::remove_all(scratch);
    return 0;
}
