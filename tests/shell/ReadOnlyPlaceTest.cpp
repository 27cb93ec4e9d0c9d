#include "shell/ReadOnlyPlace.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
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

/// Leaves the process-wide directories as they were.
class SettingsHome : public ::testing::Test {
 protected:
    ~SettingsHome() override { settingsDirectory.clear(); }

    TempDirectory directory_;
};

TEST_F(SettingsHome, IsBesideTheProgramWhereThatCanBeWritten) {
    applicationDirectory = directory_.path();
    chooseSettingsDirectory(directory_.file("config"));
    EXPECT_EQ(inSettingsDirectory("Zephyrgraph.cfg"), directory_.file("Zephyrgraph.cfg"));
    EXPECT_FALSE(std::filesystem::exists(directory_.file("config")));
}

TEST_F(SettingsHome, IsTheUsersWhereTheProgramsCannotBeWritten) {
    applicationDirectory = "/proc";
    chooseSettingsDirectory(directory_.file("config/Zephyrgraph"));
    EXPECT_EQ(inSettingsDirectory("expr.dat"), directory_.file("config/Zephyrgraph/expr.dat"));
    TestHost host;
    host.boxAnswers = {BoxAnswer::Ok};
    tellReadOnlyPlace(host, settingsDirectory);
    tellReadOnlyPlace(host, settingsDirectory);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_NE(host.boxes[0].text.find("kept in " + directory_.file("config/Zephyrgraph") + " instead."),
              std::string::npos);
}

TEST_F(SettingsHome, KeepsTheSettingsFromOneStartToTheNext) {
    applicationDirectory = "/proc";
    for (const char* radius : {"25%", "40%"}) {
        settings = Settings();
        chooseSettingsDirectory(directory_.file("config"));
        startSettings();
        EXPECT_EQ(settings.RadiusText, radius);
        settings.RadiusText = "40%";
        WriteCfgFile(settings.CfgFilePath);
    }
    EXPECT_TRUE(std::filesystem::exists(directory_.file("config/Zephyrgraph.cfg")));
}

TEST_F(SettingsHome, ThatCannotBeWrittenEitherIsNone) {
    applicationDirectory = "/proc";
    chooseSettingsDirectory("/proc/nowhere");
    EXPECT_EQ(settingsDirectory, "");
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
