// Temporary files in a directory that others use too.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "base/Files.h"
#include "base/TemporaryFiles.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class SharedPlace : public ::testing::Test {
 protected:
    TemporaryPlace place() const { return {directory_.path() + "/", "wind-", true}; }
    std::string stem(const char* numbers) const { return "wind-" + machineName() + "-" + numbers; }

    /// A process that is killed while it has a directory with a file.
    void killedProcess() {
        const pid_t child = fork();
        if (child == 0) {
            TemporaryFiles files(place());
            makeFile(files.makeDirectory() + "/counts");
            kill(getpid(), SIGKILL);
        }
        waitpid(child, nullptr, 0);
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found = namesIn(directory_.path());
        std::sort(found.begin(), found.end());
        return found;
    }

    TempDirectory directory_;
};

TEST_F(SharedPlace, WhatKilledProcessesLeftIsRemoved) {
    killedProcess();
    killedProcess();
    ASSERT_EQ(names().size(), 4U) << "a lock and a directory of each";
    EXPECT_EQ(TemporaryFiles(place()).removeRemains(), "");
    EXPECT_TRUE(names().empty());
}

TEST_F(SharedPlace, FilesOfALiveProcessStay) {
    const TemporaryFiles files(place());
    const std::string lock = directory_.write(stem("1-1") + ".lock", "");
    makeDirectory(directory_.file(stem("1-1-1") + ".tmp"));
    const int file = open(lock.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(file, LOCK_EX), 0);
    files.removeRemains();
    EXPECT_TRUE(stateOfName(directory_.file(stem("1-1-1") + ".tmp")));
    close(file);
    files.removeRemains();
    EXPECT_FALSE(stateOfName(directory_.file(stem("1-1-1") + ".tmp")));
    EXPECT_FALSE(stateOfName(lock));
}

TEST_F(SharedPlace, ALinkIsRemovedAndNotWhereItLeads) {
    directory_.write(stem("1-1") + ".lock", "");
    makeDirectory(directory_.file("precious"));
    directory_.write("precious/letter", "x");
    std::filesystem::create_symlink(directory_.file("precious"), directory_.file(stem("1-1-1") + ".tmp"));
    TemporaryFiles(place()).removeRemains();
    EXPECT_EQ(names(), (std::vector<std::string>{"precious"}));
    EXPECT_EQ(directory_.read("precious/letter"), "x");
}

TEST_F(SharedPlace, FilesOfOtherUsersStay) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give files away, and remove those of others";
    constexpr uid_t other = 65534;
    for (const char* numbers : {"1-1", "2-1"}) {
        directory_.write(stem(numbers) + ".lock", "");
        makeDirectory(directory_.file(stem(numbers) + "-1.tmp"));
    }
    ASSERT_EQ(chown(directory_.file(stem("1-1") + ".lock").c_str(), other, other), 0);
    ASSERT_EQ(chown(directory_.file(stem("1-1-1") + ".tmp").c_str(), other, other), 0);
    ASSERT_EQ(chown(directory_.file(stem("2-1-1") + ".tmp").c_str(), other, other), 0);
    const std::vector<std::string> kept = {stem("1-1-1") + ".tmp", stem("1-1") + ".lock",
                                           stem("2-1-1") + ".tmp"};
    TemporaryFiles(place()).removeRemains();
    EXPECT_EQ(names(), kept);
    EXPECT_TRUE(isOwnFile(directory_.path()));
    EXPECT_FALSE(isOwnFile(directory_.file(kept[0])));
    EXPECT_FALSE(isOwnFile(directory_.file("none")));
}

TEST_F(SharedPlace, FilesOfOtherMachinesAndOtherNamesStay) {
    const std::vector<std::string> others = {"wind-12-1",
                                             "wind-12-1.tmp",
                                             "wind-node-7-12-1-1.tmp",
                                             "wind-node-7-12-1.lock",
                                             stem("1-1-1") + ".tmp",
                                             "wind-.lock"};
    for (const std::string& name : others) directory_.write(name, "x");
    TemporaryFiles(place()).removeRemains();
    EXPECT_EQ(names().size(), others.size());
}

}  // namespace
}  // namespace zg
