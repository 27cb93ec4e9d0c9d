#include "tempoline/Temporaries.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

std::vector<std::string> namesInDirectory() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator("."))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

std::string machine() {
    char name[65] = {};
    gethostname(name, sizeof name - 1);
    return name;
}

/// Starts a run that creates files and is killed; returns its process.
pid_t killedRun() {
    const pid_t child = fork();
    if (child == 0) {
        const auto temporaries = Temporaries::ofThisRun();
        for (int i = 0; i < 5; ++i) temporaries->makeFile();
        temporaries->makeDirectory();
        kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
    return child;
}

}  // namespace

TEST(Temporaries, AreOfTheMachineAndTheProcess) {
    const InDirectory inside;
    const std::string stem = ".tempoline-" + machine() + "-" + std::to_string(getpid()) + "-1";
    {
        const auto temporaries = Temporaries::ofThisRun();
        EXPECT_EQ(temporaries->makeFile(), stem + "-1.tmp");
        EXPECT_EQ(Temporaries::ofThisRun()->makeFile(), stem + "-2.tmp");
        EXPECT_EQ(namesInDirectory(),
                  (std::vector<std::string>{stem + "-1.tmp", stem + "-2.tmp", stem + ".lock"}));
    }
    EXPECT_EQ(namesInDirectory(), (std::vector<std::string>{stem + "-1.tmp", stem + "-2.tmp"}));
}

TEST(Temporaries, OfKilledRunsAreRemoved) {
    const InDirectory inside;
    for (int i = 0; i < 3; ++i) killedRun();
    EXPECT_EQ(namesInDirectory().size(), 21U);
    EXPECT_EQ(Temporaries::ofThisRun()->removeRemains(), "");
    EXPECT_TRUE(namesInDirectory().empty());
}

TEST(Temporaries, OfARunThatGoesOnStay) {
    const InDirectory inside;
    const std::string stem = ".tempoline-" + machine() + "-1-1";
    inside.directory.write(stem + "-1.tmp", "x");
    inside.directory.write(stem + ".lock", "");
    const int file = open((stem + ".lock").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(file, LOCK_EX), 0);
    EXPECT_EQ(Temporaries::ofThisRun()->removeRemains(), "");
    EXPECT_EQ(namesInDirectory().size(), 2U);
    close(file);
    EXPECT_EQ(Temporaries::ofThisRun()->removeRemains(), "");
    EXPECT_TRUE(namesInDirectory().empty());
}

TEST(Temporaries, OfOtherMachinesStayAndAreNamed) {
    const InDirectory inside;
    for (const char* const name :
         {".tempoline-node-7-12-1.lock", ".tempoline-node-7-12-1-1.tmp", ".tempoline-node-7-12-1-2.tmp",
          ".tempoline-12-1.tmp", ".tempoline", "x.tmp"})
        inside.directory.write(name, "x");
    EXPECT_EQ(
        Temporaries::ofThisRun()->removeRemains(),
        "of runs that may go on elsewhere there are .tempoline-12* (1 file), .tempoline-node-7-12-1* (3 "
        "files)");
    EXPECT_EQ(namesInDirectory().size(), 6U);
}

TEST(Temporaries, ANumberThatAKilledRunHadIsPassedOver) {
    const InDirectory inside;
    const std::string stem = ".tempoline-" + machine() + "-" + std::to_string(getpid()) + "-";
    inside.directory.write(stem + "1.lock", "");
    inside.directory.write(stem + "1-1.tmp", "x");
    const auto temporaries = Temporaries::ofThisRun();
    EXPECT_EQ(temporaries->makeFile(), stem + "2-1.tmp");
    EXPECT_EQ(temporaries->removeRemains(), "");
    EXPECT_EQ(namesInDirectory(), (std::vector<std::string>{stem + "2-1.tmp", stem + "2.lock"}));
}

}  // namespace zg::tempoline
