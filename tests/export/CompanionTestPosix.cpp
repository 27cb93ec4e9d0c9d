// The companion as a command where the system allows it little.

#include <linux/close_range.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>

#include "tests/export/CompanionRun.h"
#include "tests/support/TempDirectory.h"

namespace {

/// A system limit for the command.
std::function<void(QProcess&)> within(int resource, rlim_t most) {
    return [resource, most](QProcess& process) {
        process.setChildProcessModifier([resource, most] {
            // Files that this program has open or inherited must not count.
            close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
            const rlimit bound{most, most};
            setrlimit(static_cast<__rlimit_resource_t>(resource), &bound);
        });
    };
}

class CompanionWithoutRoom : public ::testing::TestWithParam<const char*> {};

TEST_P(CompanionWithoutRoom, AFileThatMayNotGrowEndsTheRunInOneLine) {
    for (const char* jobs : {"1", "4"}) {
        const TempDirectory directory;
        const Result result = runCompanion({sample, "--format", GetParam(), "--jobs", jobs, "--out",
                                            QString::fromStdString(directory.path())},
                                           within(RLIMIT_FSIZE, 5000));
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.out.isEmpty()) << result.out.toStdString();
        EXPECT_TRUE(result.errors.endsWith(QByteArray(".") + GetParam() + ": File too large\n"))
            << result.errors.toStdString();
        EXPECT_EQ(result.errors.count('\n'), 1);
        EXPECT_TRUE(std::filesystem::is_empty(directory.path())) << "nothing half is left";
    }
}

INSTANTIATE_TEST_SUITE_P(, CompanionWithoutRoom, ::testing::Values("png", "bmp", "svg", "pdf"),
                         [](const auto& format) { return std::string(format.param); });

#ifndef __SANITIZE_ADDRESS__  // which needs more than any limit itself
TEST(Companion, WhatTheToolkitCannotDoWithoutEndsTheRunInOneLine) {
    const TempDirectory directory;
    const Result result =
        runCompanion({sample, "--out", QString::fromStdString(directory.path())}, within(RLIMIT_NOFILE, 4));
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.contains("zephyrgraph-export: ")) << result.errors.toStdString();
    EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
}

TEST(Companion, APageThatMemoryCannotHoldEndsTheRunInOneLine) {
    for (const char* jobs : {"1", "3"}) {
        const TempDirectory directory;
        const Result result = runCompanion(
            {sample, "--size", "16384", "--jobs", jobs, "--out", QString::fromStdString(directory.path())},
            within(RLIMIT_AS, rlim_t{900} << 20));
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.errors.endsWith(".png: out of memory\n")) << result.errors.toStdString();
        EXPECT_EQ(result.errors.count('\n'), 1);
        EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
    }
}

TEST(Companion, MemoryThatSufficesForNoMoreIsNoCrash) {
    for (const int megabytes : {200, 250, 300, 350}) {
        const TempDirectory directory;
        const Result result =
            runCompanion({sample, "--jobs", "8", "--out", QString::fromStdString(directory.path())},
                         within(RLIMIT_AS, static_cast<rlim_t>(megabytes) << 20));
        const auto pictures = std::distance(std::filesystem::directory_iterator(directory.path()), {});
        const bool whole = result.out.count('\n') == 9;
        EXPECT_EQ(result.status, whole ? 0 : 1) << megabytes;
        EXPECT_LE(result.out.count('\n'), pictures) << "what is named is there";
        EXPECT_EQ(result.errors.endsWith(": out of memory\n"), !whole) << result.errors.toStdString();
        for (const auto& entry : std::filesystem::directory_iterator(directory.path()))
            EXPECT_EQ(entry.path().extension(), ".png");
    }
}
#endif

}  // namespace
