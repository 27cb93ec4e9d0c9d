// Bitmaps of the page where the system allows files to grow only so far, and has permissions and links.

#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "base/RunTimeError.h"
#include "tests/platform/PageFixture.h"

namespace zg {
namespace {

TEST_F(PageOutput, AFileThatCannotGrowIsToldAndTheOldOneStays) {
    const std::string path = directory_.write("rose.bmp", "old");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{10'000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(plot().EditCopyTo(path), RunTimeError);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(directory_.read("rose.bmp"), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory_.path()), {}), 1);
}

TEST_F(PageOutput, AFileThatIsReplacedKeepsWhoMayReadItAndItsLink) {
    const std::string path = directory_.write("rose.bmp", "old");
    std::filesystem::permissions(path,
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    std::filesystem::create_symlink("rose.bmp", directory_.file("link.bmp"));
    directory_.write("link.bmp.new1", "of another program");
    directory_.write("rose.bmp.new1", "of another program");
    plot().EditCopyTo(directory_.file("link.bmp"));
    EXPECT_TRUE(std::filesystem::is_symlink(directory_.file("link.bmp")));
    EXPECT_EQ(directory_.read("rose.bmp").substr(0, 2), "BM");
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_EQ(directory_.read("rose.bmp.new1"), "of another program");
}

}  // namespace
}  // namespace zg
