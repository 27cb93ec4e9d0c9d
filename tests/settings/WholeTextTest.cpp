#include "settings/WholeText.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/TempDirectory.h"

namespace {

using namespace zg;

class WholeText : public testing::Test {
 protected:
    std::size_t files() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(directory_.path()), {}));
    }

    TempDirectory directory_;
};

TEST_F(WholeText, ReplacesAFileAndLeavesNothingBeside) {
    EXPECT_TRUE(replaceFile(directory_.file("a.cfg"), "old"));
    EXPECT_TRUE(replaceFile(directory_.file("a.cfg"), "new"));
    EXPECT_EQ(directory_.read("a.cfg"), "new");
    EXPECT_EQ(files(), 1U);
    EXPECT_FALSE(replaceFile("", "new"));
    EXPECT_FALSE(replaceFile(directory_.path(), "new"));
    EXPECT_FALSE(replaceFile(directory_.file("missing/a.cfg"), "new"));
}

}  // namespace
