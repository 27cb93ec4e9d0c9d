#include "shell/ReadOnlyPlace.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

TEST(ReadOnlyPlace, IsTriedWithAFileThatIsRemovedAgain) {
    const TempDirectory directory;
    EXPECT_TRUE(canWriteIn(directory.path()));
    EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
    EXPECT_FALSE(canWriteIn(directory.file("no such directory")));
    EXPECT_FALSE(canWriteIn(directory.write("a file", "")));
    EXPECT_FALSE(canWriteIn("/proc")) << "not even the superuser can";
}

TEST(ReadOnlyPlace, IsToldOnceForEachPlace) {
    const TempDirectory directory;
    const std::string notes = directory.file("config/zephyrgraph");
    TestHost host;
    applicationDirectory = directory.path();
    tellReadOnlyPlace(host, notes);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_FALSE(std::filesystem::exists(notes));
    for (const char* place : {"/proc", "/proc", "/proc/self", "/proc", "/proc/self"}) {
        applicationDirectory = place;
        host.boxAnswers = {BoxAnswer::Ok};
        tellReadOnlyPlace(host, notes);
        host.boxAnswers.clear();
    }
    ASSERT_EQ(host.boxes.size(), 2U);
    EXPECT_NE(host.boxes[0].text.find("cannot be made in /proc."), std::string::npos);
    EXPECT_NE(host.boxes[1].text.find("cannot be made in /proc/self."), std::string::npos);
    EXPECT_EQ(directory.read("config/zephyrgraph/told-places"), "/proc\r\n/proc/self\r\n");
}

TEST(ReadOnlyPlace, WithoutAPlaceForTheNoteItIsToldAgain) {
    TestHost host;
    applicationDirectory = "/proc";
    for (int start = 0; start < 2; ++start) {
        host.boxAnswers = {BoxAnswer::Ok};
        tellReadOnlyPlace(host, "/proc/nowhere");
    }
    EXPECT_EQ(host.boxes.size(), 2U);
}

}  // namespace
}  // namespace zg
