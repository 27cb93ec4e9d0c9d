#include "shell/ReadOnlyPlace.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

/// Places in which not even the superuser can make a file; elsewhere than on Linux they are files themselves.
struct ClosedPlaces {
    TempDirectory directory;
    std::string one = onWindows ? directory.write("one", "") : "/proc";
    std::string other = onWindows ? directory.write("other", "") : "/proc/self";
    std::string missing = one + pathSeparator + "nowhere";
};

TEST(ReadOnlyPlace, IsTriedWithAFileThatIsRemovedAgain) {
    const TempDirectory directory;
    EXPECT_TRUE(canWriteIn(directory.path()));
    EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
    EXPECT_FALSE(canWriteIn(directory.file("no such directory")));
    EXPECT_FALSE(canWriteIn(directory.write("a file", "")));
    const ClosedPlaces closed;
    EXPECT_FALSE(canWriteIn(closed.one));
    EXPECT_FALSE(canWriteIn(closed.missing));
}

TEST(ReadOnlyPlace, IsToldOnceForEachPlace) {
    const TempDirectory directory;
    const std::string notes = directory.file("config/zephyrgraph");
    TestHost host;
    applicationDirectory = directory.path();
    tellReadOnlyPlace(host, notes);
    EXPECT_TRUE(host.boxes.empty());
    EXPECT_FALSE(std::filesystem::exists(notes));
    const ClosedPlaces closed;
    for (const std::string& place : {closed.one, closed.one, closed.other, closed.one, closed.other}) {
        applicationDirectory = place;
        host.boxAnswers = {BoxAnswer::Ok};
        tellReadOnlyPlace(host, notes);
        host.boxAnswers.clear();
    }
    ASSERT_EQ(host.boxes.size(), 2U);
    EXPECT_NE(host.boxes[0].text.find("cannot be made in " + closed.one + "."), std::string::npos);
    EXPECT_NE(host.boxes[1].text.find("cannot be made in " + closed.other + "."), std::string::npos);
    EXPECT_EQ(directory.read("config/zephyrgraph/told-places"), closed.one + "\r\n" + closed.other + "\r\n");
}

/// Leaves the process-wide directories as they were.
class SettingsHome : public ::testing::Test {
 protected:
    ~SettingsHome() override { settingsDirectory.clear(); }

    TempDirectory directory_;
    ClosedPlaces closed_;
};

TEST_F(SettingsHome, IsBesideTheProgramWhereThatCanBeWritten) {
    applicationDirectory = directory_.path();
    chooseSettingsDirectory(directory_.file("config"));
    EXPECT_EQ(inSettingsDirectory("Zephyrgraph.cfg"), directory_.file("Zephyrgraph.cfg"));
    EXPECT_FALSE(std::filesystem::exists(directory_.file("config")));
}

TEST_F(SettingsHome, IsTheUsersWhereTheProgramsCannotBeWritten) {
    applicationDirectory = closed_.one;
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
    applicationDirectory = closed_.one;
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
    applicationDirectory = closed_.one;
    chooseSettingsDirectory(closed_.missing);
    EXPECT_EQ(settingsDirectory, "");
}

TEST(ReadOnlyPlace, WithoutAPlaceForTheNoteItIsToldAgain) {
    TestHost host;
    const ClosedPlaces closed;
    applicationDirectory = closed.one;
    for (int start = 0; start < 2; ++start) {
        host.boxAnswers = {BoxAnswer::Ok};
        tellReadOnlyPlace(host, closed.missing);
    }
    EXPECT_EQ(host.boxes.size(), 2U);
}

}  // namespace
}  // namespace zg
