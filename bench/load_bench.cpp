// Loading the largest file that the 16-bit line count allows, compared with only reading and counting its
// lines.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "base/Lines.h"
#include "base/Numbers.h"
#include "graph/frq/OpenFreqFile.h"
#include "tests/support/DeafHost.h"
#include "tests/support/FreqText.h"

namespace {

/// The largest file: 1488 roses of version 2.3, 32745 lines; one more rose would exceed 32766. Removed at the
/// end.
class LargestFile {
 public:
    LargestFile() {
        char name[] = "/tmp/zg_load_bench_XXXXXX";
        const int descriptor = mkstemp(name);
        if (descriptor < 0) std::abort();
        close(descriptor);
        path_ = name;
        std::ofstream(path_, std::ios::binary) << freqtext::bytes(freqtext::file("2.3", 1488));
    }
    ~LargestFile() { std::remove(path_.c_str()); }
    LargestFile(const LargestFile&) = delete;
    LargestFile& operator=(const LargestFile&) = delete;

    const std::string& path() const { return path_; }

 private:
    std::string path_;
};

const LargestFile& largestFile() {
    static const LargestFile file;
    return file;
}

std::size_t countLines(const std::string& path) {
    zg::LineReader reader(path);
    std::size_t count = 0;
    while (!reader.atEnd()) {
        benchmark::DoNotOptimize(reader.readLine());
        ++count;
    }
    return count;
}

void load(const std::string& path, zg::ModPolarGraph& tables) {
    DeafHost host;
    zg::loadFreqFile(path, tables, host);
}

/// A field of the process's status, such as "VmRSS", in bytes.
double statusBytes(const std::string& field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.starts_with(field + ":")) return zg::val(line.substr(field.size() + 1)) * 1024;
    return 0;
}

double secondsOf(void (*work)()) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void ReadAndCountLines(benchmark::State& state) {
    const std::string& path = largestFile().path();
    for (auto _ : state) benchmark::DoNotOptimize(countLines(path));
}
BENCHMARK(ReadAndCountLines)->Unit(benchmark::kMillisecond);

void LoadLargestFile(benchmark::State& state) {
    const std::string& path = largestFile().path();
    zg::ModPolarGraph tables;
    for (auto _ : state) load(path, tables);
    if (tables.FrqRoseCount != 1488 || !tables.FrqLoaded) state.SkipWithError("the file did not load");
}
BENCHMARK(LoadLargestFile)->Unit(benchmark::kMillisecond);

/// Alternates both, so that the load of the machine affects both alike; the counter is the quotient of the
/// sums.
void LoadOverCount(benchmark::State& state) {
    static zg::ModPolarGraph tables;
    double loading = 0;
    double counting = 0;
    for (auto _ : state) {
        counting += secondsOf([] { benchmark::DoNotOptimize(countLines(largestFile().path())); });
        loading += secondsOf([] { load(largestFile().path(), tables); });
    }
    state.counters["loadOverCount"] = loading / counting;
}
BENCHMARK(LoadOverCount)->Unit(benchmark::kMillisecond);

/// The peak memory that one load into fresh tables adds to the process.
void MemoryOfLargestFile(benchmark::State& state) {
    const std::string& path = largestFile().path();
    double added = 0;
    for (auto _ : state) {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5";  // resets the peak
        const double before = statusBytes("VmRSS");
        zg::ModPolarGraph tables;
        load(path, tables);
        added = std::max(added, statusBytes("VmHWM") - before);
    }
    state.counters["addedMiB"] = added / (1024 * 1024);
}
BENCHMARK(MemoryOfLargestFile)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
