// zg_fuzz TARGET [options of the fuzzer] [directories]: all fuzz targets in one program.

#include <cstdio>
#include <cstdlib>

#include "tests/fuzz/Fuzz.h"

namespace {

FuzzFunction chosen = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    // The fuzzer starts itself again for some work, with the remaining arguments: without the target.
    const char* inherited = std::getenv("ZG_FUZZ_TARGET");
    const std::string name = inherited != nullptr ? inherited : *argc > 1 ? (*argv)[1] : "";
    const auto target = fuzzTargets().find(name);
    if (target == fuzzTargets().end()) {
        std::fprintf(stderr, "usage: zg_fuzz TARGET [options of the fuzzer] [directories]\ntargets:");
        for (const auto& [known, function] : fuzzTargets()) std::fprintf(stderr, " %s", known.c_str());
        std::fprintf(stderr, "\n");
        std::exit(2);
    }
    chosen = target->second;
    if (inherited != nullptr) return 0;
    setenv("ZG_FUZZ_TARGET", name.c_str(), 1);
    for (int i = 1; i + 1 < *argc; ++i) (*argv)[i] = (*argv)[i + 1];
    --*argc;
    (*argv)[*argc] = nullptr;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return chosen(data, size);
}
