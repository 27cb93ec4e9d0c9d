// What only systems do that let a file be replaced while it is read.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdio>
#include <filesystem>

#include "base/Lines.h"
#include "settings/WholeText.h"
#include "tests/support/TempDirectory.h"

namespace {

using namespace zg;

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

TEST_F(WholeTextOfPosix, ThroughALinkReplacesItsTarget) {
    directory_.write("target", "old");
    std::filesystem::create_symlink(directory_.file("target"), directory_.file("a.cfg"));
    EXPECT_TRUE(replaceFile(directory_.file("a.cfg"), "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(directory_.file("a.cfg")));
    EXPECT_EQ(directory_.read("target"), "new");
}

}  // namespace
