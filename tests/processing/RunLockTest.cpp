#include "processing/RunLock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/TempDirectory.h"

namespace {
int lookedAt = 0;
int wrongNumbers = 0;
}  // namespace

// The linker redirects the calls here (--wrap).
extern "C" {
int __real_lstat(const char* path, struct stat* state);
int __wrap_lstat(const char* path, struct stat* state) {
    const int result = __real_lstat(path, state);
    ++lookedAt;
    if (wrongNumbers > 0 && wrongNumbers-- > 0) ++state->st_ino;
    return result;
}
}

namespace zg {
namespace {

/// Another process, started before this one has any lock, as a second window would be.
class OtherProcess {
 public:
    OtherProcess() {
        EXPECT_EQ(pipe(orders_), 0);
        EXPECT_EQ(pipe(answers_), 0);
        child_ = fork();
        if (child_ == 0) obey();
    }
    ~OtherProcess() {
        end();
        for (const int file : {orders_[0], orders_[1], answers_[0], answers_[1]}) close(file);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// It holds the lock of that directory from now on, until it is killed.
    bool takes(const std::string& directory) {
        const std::string order = directory + "\n";
        char answer = 0;
        EXPECT_EQ(write(orders_[1], order.data(), order.size()), static_cast<ssize_t>(order.size()));
        EXPECT_EQ(read(answers_[0], &answer, 1), 1);
        return answer == 'y';
    }
    void end() {
        if (child_ <= 0) return;
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
        child_ = 0;
    }

 private:
    [[noreturn]] void obey() {
        std::string order;
        std::vector<std::shared_ptr<RunLock>> locks;
        for (char byte = 0; read(orders_[0], &byte, 1) == 1;) {
            if (byte != '\n') {
                order += byte;
                continue;
            }
            locks.push_back(RunLock::take(order));
            order.clear();
            const char answer = locks.back() ? 'y' : 'n';
            if (write(answers_[1], &answer, 1) != 1) break;
        }
        _exit(1);
    }

    int orders_[2] = {};
    int answers_[2] = {};
    pid_t child_ = 0;
};

class RunLockTest : public ::testing::Test {
 protected:
    OtherProcess other_;
    TempDirectory directory_;
    std::string out_ = directory_.path() + "/";
};

TEST_F(RunLockTest, IsAFileBesideTheBatchFileForAsLongAsItIsHeld) {
    {
        const auto lock = RunLock::take(out_);
        ASSERT_NE(lock, nullptr);
        EXPECT_TRUE(std::filesystem::exists(directory_.file("run_tempoline.lock")));
    }
    EXPECT_TRUE(std::filesystem::is_empty(directory_.path()));
}

TEST_F(RunLockTest, IsRefusedWhileAnotherProcessHoldsItAndGoneWithThatProcess) {
    ASSERT_TRUE(other_.takes(out_));
    EXPECT_EQ(RunLock::take(out_), nullptr);
    EXPECT_EQ(RunLock::take(out_ + "./"), nullptr) << "however the directory is written";
    const TempDirectory elsewhere;
    EXPECT_NE(RunLock::take(elsewhere.path() + "/"), nullptr);
    other_.end();
    EXPECT_TRUE(std::filesystem::exists(directory_.file("run_tempoline.lock")))
        << "killed, it leaves its file";
    EXPECT_NE(RunLock::take(out_), nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(directory_.path()));
}

TEST_F(RunLockTest, IsRefusedToAnotherProcessWhileThisOneHoldsIt) {
    auto lock = RunLock::take(out_);
    ASSERT_NE(lock, nullptr);
    EXPECT_FALSE(other_.takes(out_));
    lock.reset();
    EXPECT_TRUE(other_.takes(out_));
}

TEST_F(RunLockTest, IsSharedByTheRunsOfOneProcess) {
    auto first = RunLock::take(out_);
    auto second = RunLock::take(directory_.path() + "//");
    EXPECT_EQ(first, second);
    first.reset();
    EXPECT_FALSE(other_.takes(out_)) << "the second run still waits";
    second.reset();
    EXPECT_TRUE(std::filesystem::is_empty(directory_.path()));
}

TEST_F(RunLockTest, IsDoneWithoutWhereNoFileCanBeMade) {
    EXPECT_NE(RunLock::take(directory_.file("missing/")), nullptr);
    EXPECT_NE(RunLock::take("/proc/"), nullptr);
    std::filesystem::create_directory(directory_.file("run_tempoline.lock"));
    EXPECT_NE(RunLock::take(out_), nullptr) << "the name is taken";
    EXPECT_TRUE(std::filesystem::is_directory(directory_.file("run_tempoline.lock")));
}

TEST_F(RunLockTest, IsDoneWithoutWhereAFileNeverHasTheNumberOfItsName) {
    lookedAt = 0;
    wrongNumbers = 1000;
    const auto lock = RunLock::take(out_);
    wrongNumbers = 0;
    EXPECT_EQ(lookedAt, 100) << "tries are not without end";
    EXPECT_NE(lock, nullptr);
    EXPECT_TRUE(other_.takes(out_)) << "nothing stays locked";
}

TEST_F(RunLockTest, IsNeverTakenByWayOfALink) {
    const TempDirectory elsewhere;
    std::filesystem::create_symlink(elsewhere.write("victim", "text"), directory_.file("run_tempoline.lock"));
    EXPECT_NE(RunLock::take(out_), nullptr);
    EXPECT_EQ(elsewhere.read("victim"), "text");
}

}  // namespace
}  // namespace zg
