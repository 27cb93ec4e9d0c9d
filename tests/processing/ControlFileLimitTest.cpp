#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "processing/ControlFile.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

TEST(ControlFile, AFullDiskIsAnErrorOfItsOwn) {
    const TempDirectory directory;
    ControlFile values;
    values.type = InputKind::Tsf;
    values.base = "base";
    values.inputFiles = {"t.tsf"};
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    // Full half-way, and full at the last byte, which only closing the file reports.
    const std::size_t size = controlFileBytes(values).size();
    for (const std::size_t room : {size / 2, size - 1}) {
        const rlimit small{room, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        EXPECT_THROW(WriteControlFile(directory.path() + "/", values), RunTimeError) << room;
        setrlimit(RLIMIT_FSIZE, &before);
    }
}

}  // namespace
}  // namespace zg
