#include "shell/StartSequence.h"

#include <algorithm>
#include <filesystem>

#include "settings/CfgFile.h"
#include "settings/WindClasses.h"
#include "tests/settings/SettingsFixture.h"
#include "tests/support/Raises.h"

namespace {

using namespace zg;

class StartSequenceTest : public SettingsFixture {};

TEST_F(StartSequenceTest, FirstStartEndsWithTheDefaultsOnDiskAndInMemory) {
    startSettings();
    EXPECT_EQ(settings.CfgFilePath, cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(settings.SeasonCount, 4);
    EXPECT_EQ(settings.SeasonNames[3], "Fall");
    EXPECT_EQ(settings.MonthSeasonString, "1,1,2,2,2,3,3,3,4,4,4,1");
    EXPECT_EQ(settings.WindClassString, "0.5,1.8,3.3,5.4,8.5,10.8");
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630.0F);
}

TEST_F(StartSequenceTest, UsersOwnFileIsRewrittenInTheWritersForm) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[1] = "  Fall";
    lines[25] = " 0.25 ";
    lines[41] = " 16711680 ";
    writeCfg(bytesOf(lines) + "ignored\r\n");
    startSettings();
    lines[1] = "Fall";
    lines[25] = "0.25";
    lines[41] = "1.671168E+07";
    EXPECT_EQ(cfgBytes(), bytesOf(lines));
    EXPECT_EQ(settings.MonthSeasonString, "1,2,3,3,3,4,4,4,1,1,1,2");
    EXPECT_EQ(settings.WindClassString, "0.25,1.8,3.3,5.4,8.5,10.8");
}

TEST_F(StartSequenceTest, DamagedFileIsLostAndTheDefaultsAreInMemory) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[25] = "0.25";
    lines[32] = "three";
    writeCfg(bytesOf(lines));
    startSettings();
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.WindClassString, "0.5,1.8,3.3,5.4,8.5,10.8");
    EXPECT_EQ(settings.ZoomListIndex, 3);
}

TEST_F(StartSequenceTest, StoredSeasonThatTheListLacksIsReplacedInTheFile) {
    writeCfg(defaultWith(4, "Monsoon"));
    startSettings();
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.SeasonOfMonth[1], "Winter");
}

TEST_F(StartSequenceTest, WithoutAWritableFileTheFactoryValuesAreInMemory) {
    std::filesystem::create_directory(cfgPath());
    startSettings();
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(settings.MonthSeasonString, "1,1,2,2,2,3,3,3,4,4,4,1");
    EXPECT_EQ(settings.WindClassString, "0.5,1.8,3.3,5.4,8.5,10.8");
    EXPECT_EQ(settings.RadiusText, "25%");
    EXPECT_EQ(modPolarGraph.LegendFont, (FontRecord{0, "Arial", 7, false, false}));
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630.0F);
    EXPECT_TRUE(std::filesystem::is_empty(cfgPath())) << "nothing is written anywhere";
}

TEST_F(StartSequenceTest, WithoutAWritableFileChangesHoldUntilTheEnd) {
    std::filesystem::create_directory(cfgPath());
    startSettings();
    acceptWindClasses({"1", "2", "3", "4", "5", "6"});
    resetWindClassMin();
    EXPECT_EQ(loadWindClasses(), (ClassTexts{"1", "2", "3", "4", "5", "6"})) << "as the file would have them";
    std::filesystem::remove(cfgPath());
    WriteCfgFile(settings.CfgFilePath);
    EXPECT_EQ(linesOf(cfgBytes()).at(25), "1") << "the file takes over as soon as it can be written";
    writeCfg(defaultBytes());
    EXPECT_EQ(loadWindClasses().at(0), "0.5");
}

TEST_F(StartSequenceTest, ADamagedFileThatCannotBeReplacedIsReadNoMore) {
    settings.CfgFilePath = "/proc/self/status";  // readable, with other lines, and never to be written
    ReadCfgFile(settings.CfgFilePath);
    ReadCfgFile(settings.CfgFilePath);
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(settings.ZoomListIndex, 3);
}

TEST_F(StartSequenceTest, ResetOfTheClassesReachesTheFileWithTheNextWrite) {
    writeCfg(defaultWith(26, "0.25"));
    startSettings();
    resetWindClassMin();
    EXPECT_EQ(cfgBytes(), defaultWith(26, "0.25")) << "the reset itself writes nothing";
    EXPECT_EQ(settings.WindClassMin, (ClassTexts{"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"}));
    EXPECT_EQ(settings.WindClassString, "0.25,1.8,3.3,5.4,8.5,10.8");
    WriteCfgFile(settings.CfgFilePath);
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.WindClassString, "0.25,1.8,3.3,5.4,8.5,10.8");
}

TEST_F(StartSequenceTest, ADialogsReadBringsTheUsersClassesBack) {
    writeCfg(defaultWith(26, "0.25"));
    startSettings();
    resetWindClassMin();
    EXPECT_EQ(loadWindClasses()[0], "0.25");
}

TEST_F(StartSequenceTest, ReadAfterALoadRefillsTheLegendsUnitToo) {
    startSettings();
    modPolarGraph.ClassesFromFile = true;
    ReadCfgFile(settings.CfgFilePath);
    EXPECT_FALSE(modPolarGraph.ClassesFromFile);
    EXPECT_FALSE(modPolarGraph.ClassesInKnots);
}

TEST_F(StartSequenceTest, ZoomIsTheNumberAtTheTextsStart) {
    for (const auto& [text, zoom] : {std::pair("100", 100.0), {"37.5%", 37.5}, {"", 0.0}, {"abc", 0.0}}) {
        settings.ZoomPercentText = text;
        EXPECT_EQ(startZoom(), zoom) << text;
    }
}

TEST_F(StartSequenceTest, RadiusIsWholePercentByFive) {
    for (const auto& [text, radius] : {std::pair("25%", 5.0), {" 50 %", 10.0}, {"12.9%", 2.4}, {"%", 0.0}}) {
        settings.RadiusText = text;
        EXPECT_EQ(startRadius(), radius) << text;
    }
    settings.RadiusText = "";
    EXPECT_EQ(startRadius(), std::nullopt);
}

TEST_F(StartSequenceTest, LabelLinesAreEmptied) {
    modPolarGraph.GraphTitle = "a";
    modPolarGraph.GraphSubTitle = "b";
    modPolarGraph.GraphCaption = "c";
    clearLabelLines();
    EXPECT_EQ(modPolarGraph.GraphTitle + modPolarGraph.GraphSubTitle + modPolarGraph.GraphCaption, "");
}

TEST_F(StartSequenceTest, BackgroundPictureIsTheFirstOfTheFour) {
    EXPECT_FALSE(findBackgroundPicture().has_value());
    std::filesystem::create_directory(directory_.file("Bitmap"));
    EXPECT_FALSE(findBackgroundPicture().has_value());

    directory_.write("Bitmap/WP4.pgw", "");
    ASSERT_TRUE(findBackgroundPicture().has_value());
    EXPECT_EQ(findBackgroundPicture()->style, 3);
    EXPECT_TRUE(
        std::filesystem::equivalent(findBackgroundPicture()->path, directory_.file("Bitmap/WP4.pgw")));

    directory_.write("Bitmap/WP2.pgw", "");
    std::filesystem::create_directory(directory_.file("Bitmap") + pathSeparator + "WP1.pgw");
    EXPECT_EQ(findBackgroundPicture()->style, 1) << "a directory is no picture";
    EXPECT_EQ(backgroundPicturePath("WP3.pgw"), "");

    std::filesystem::remove(directory_.file("Bitmap") + pathSeparator + "WP1.pgw");
    directory_.write("Bitmap/WP1.pgw", "");
    EXPECT_EQ(findBackgroundPicture()->style, 0);
}

TEST_F(StartSequenceTest, ResetOfTheClassesRestoresTheFactoryMinimaToo) {
    settings.DefaultWindClassMin.fill("9");
    resetWindClassMin();
    EXPECT_EQ(settings.DefaultWindClassMin, (ClassTexts{"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"}));
    EXPECT_EQ(settings.WindClassMin, settings.DefaultWindClassMin);
}

TEST_F(StartSequenceTest, BackgroundPicturesAreRemovedAndOtherFilesStay) {
    removeBackgroundPictures();
    EXPECT_FALSE(std::filesystem::exists(directory_.file("Bitmap"))) << "no directory is no fault";
    std::filesystem::create_directory(directory_.file("Bitmap"));
    for (const char* name : {"WP1.pgw", "WP3.PGW", "mine.pgw", "mine.bmp", "pgw"})
        directory_.write(std::string("Bitmap/") + name, "");
    removeBackgroundPictures();
    std::vector<std::string> left;
    for (const auto& entry : std::filesystem::directory_iterator(directory_.file("Bitmap")))
        left.push_back(entry.path().filename().string());
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left, (std::vector<std::string>{"mine.bmp", "pgw"}));
}

TEST_F(StartSequenceTest, ANewBackgroundPictureHasThePlaceOfItsStyle) {
    const auto nameOf = [](std::int32_t style) {
        return std::filesystem::path(newBackgroundPicturePath(style)).filename().string();
    };
    EXPECT_EQ(newBackgroundPicturePath(0), directory_.file("Bitmap") + pathSeparator + "WP1.pgw");
    EXPECT_TRUE(std::filesystem::is_directory(directory_.file("Bitmap")));
    EXPECT_EQ(nameOf(1), "WP2.pgw");
    EXPECT_EQ(nameOf(3), "WP4.pgw");
    EXPECT_EQ(nameOf(4), "WP4.pgw") << "a style beyond the last is the last";
    EXPECT_EQ(nameOf(-1), "WP1.pgw");
}

TEST_F(StartSequenceTest, ANewBackgroundPictureNeedsItsDirectory) {
    directory_.write("Bitmap", "a file in its place");
    EXPECT_RAISES(75, "Path/File access error", newBackgroundPicturePath(0));
}

}  // namespace
