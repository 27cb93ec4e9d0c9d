#include "tests/support/TestStart.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/System.h"

namespace {

/// A file beside the program, written by the build: one line per requirement, with its target and its path.
bool everythingNeededIsThere(const std::filesystem::path& program) {
    std::ifstream list(program.string() + ".needs");
    bool complete = true;
    std::string target;
    std::string path;
    while (list >> target && std::getline(list >> std::ws, path)) {
        if (std::filesystem::exists(path)) continue;
        std::fprintf(stderr, "%s needs %s, which is not there. Build it:  cmake --build %s --target %s\n",
                     program.filename().string().c_str(), path.c_str(), ZG_BINARY_DIR, target.c_str());
        complete = false;
    }
    if (!std::filesystem::exists(ZG_SOURCE_DIR "/data/samples")) {
        std::fprintf(stderr, "%s needs the checkout that it was built from: %s\n",
                     program.filename().string().c_str(), ZG_SOURCE_DIR);
        complete = false;
    }
    return complete;
}

}  // namespace

int startTests(int argc, char** argv) {
    setEnvironment("LC_ALL", "C.UTF-8");
    ::testing::InitGoogleTest(&argc, argv);
    if (!everythingNeededIsThere(argv[0])) return 2;
    return RUN_ALL_TESTS();
}
