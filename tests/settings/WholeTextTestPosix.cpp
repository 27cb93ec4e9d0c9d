// What only systems do that let a file be replaced while it is read.

#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "base/Lines.h"
#include "settings/WholeText.h"
#include "tests/support/TempDirectory.h"

namespace {

using namespace zg;

/// From now on no file of this process can take the place of another, as with a file that is mounted.
bool refuseRenames() {
    std::vector<sock_filter> program = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
    };
    for (const unsigned call : {
#ifdef SYS_rename
             unsigned{SYS_rename},
#endif
#ifdef SYS_renameat
             unsigned{SYS_renameat},
#endif
             unsigned{SYS_renameat2}}) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EBUSY));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

/// The status with which the action ends a process of its own.
template <typename Action>
int statusOf(Action action) {
    const pid_t child = fork();
    if (child == 0) _exit(action());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class WholeTextOfPosix : public testing::Test {
 protected:
    std::size_t files() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(directory_.path()), {}));
    }

    TempDirectory directory_;
};

TEST_F(WholeTextOfPosix, AnotherWindowThatReadsMeanwhileSeesTheOldTextToItsEnd) {
    const std::string old(100'000, 'o');
    const std::string path = directory_.write("a.cfg", old);
    const FileHandle other(std::fopen(path.c_str(), "rb"));
    std::string seen(old.size() + 1, ' ');
    std::size_t count = std::fread(seen.data(), 1, 10, other.get());
    EXPECT_TRUE(replaceFile(path, std::string(100'000, 'n')));
    count += std::fread(seen.data() + count, 1, seen.size() - count, other.get());
    seen.resize(count);
    EXPECT_EQ(seen, old);
}

TEST_F(WholeTextOfPosix, BesideTheUnfinishedFileOfAnotherWindowTakesAnotherName) {
    directory_.write("a.cfg.new1", "half");
    EXPECT_TRUE(replaceFile(directory_.file("a.cfg"), "new"));
    EXPECT_EQ(directory_.read("a.cfg"), "new");
    EXPECT_EQ(directory_.read("a.cfg.new1"), "half");
}

TEST_F(WholeTextOfPosix, OnAFullDiskTheOldFileStaysAsItWas) {
    const std::string path = directory_.write("a.cfg", "old");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit none = before;
    none.rlim_cur = 2;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
    const bool written = replaceFile(path, "new");
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(written);
    EXPECT_EQ(directory_.read("a.cfg"), "old");
    EXPECT_EQ(files(), 1U) << "what was begun is removed";
}

TEST_F(WholeTextOfPosix, WhoseNameNoOtherFileCanTakeIsWrittenInPlace) {
    const std::string path = directory_.write("a.cfg", "a longer old text");
    const std::string other = directory_.write("b.cfg", "other");
    enum : int { Written, NotWritten, NoFilter, Renamed };
    const int status = statusOf([&]() -> int {
        if (!refuseRenames()) return NoFilter;
        if (std::rename(other.c_str(), path.c_str()) == 0) return Renamed;
        return replaceFile(path, "new") ? Written : NotWritten;
    });
    EXPECT_EQ(status, Written);
    EXPECT_EQ(directory_.read("a.cfg"), "new");
    EXPECT_EQ(files(), 2U) << "what was written beside it is removed";
}

TEST_F(WholeTextOfPosix, ThroughALinkReplacesItsTarget) {
    directory_.write("target", "old");
    std::filesystem::create_symlink(directory_.file("target"), directory_.file("a.cfg"));
    EXPECT_TRUE(replaceFile(directory_.file("a.cfg"), "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(directory_.file("a.cfg")));
    EXPECT_EQ(directory_.read("target"), "new");
}

}  // namespace
