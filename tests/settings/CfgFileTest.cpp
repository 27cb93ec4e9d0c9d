#include "settings/CfgFile.h"

#include <unistd.h>

#include <filesystem>

#include "tests/settings/SettingsFixture.h"

namespace {

using namespace zg;

class CfgFileTest : public SettingsFixture {
 protected:
    /// A distinct value on every line of the file.
    static void setOwnValues() {
        settings.DefaultTimeZone = "  (UTC+01:00) Here ";
        settings.SeasonOfMonth = {"Fall",   "Fall",   "Spring", "Spring", "Winter", "Summer",
                                  "Summer", "Summer", "Summer", "Winter", "Winter", "Fall"};
        settings.CustomSeasonOfMonth = {"c1", "", "", "", "", "", "", "", "", "", "", "  kept blanks  "};
        settings.WindClassMin = {" 0.25", "-1", "1.5E1", "3", "", "x y"};
        settings.ZoomPercentText = "333";
        settings.ZoomListIndex = 14;
        settings.RadiusText = "37.5%";
        modPolarGraph.LabelFont = {16711680.0F, "Times New Roman", 12, true, true};
        modPolarGraph.ClassesFromFile = true;
        modPolarGraph.ClassesInKnots = false;
        modPolarGraph.WindClassColor = {1.0F, 0.5F, 16777215.0F, 9999999.0F, -1.0F, 0.0F};
        modPolarGraph.DirectionFont = {255.0F, "Courier", -32768, false, true};
        modPolarGraph.PercentFont = {65280.0F, " Padded ", 32767, true, false};
        modPolarGraph.LegendFont = {1.0F, "", 0, false, false};
        modPolarGraph.GridLineColor = 14737632.0F;
    }
};

TEST_F(CfgFileTest, DefaultFileHasItsExactBytes) {
    WriteDefaultCfgFile();
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(linesOf(cfgBytes()).size(), 68U);
}

TEST_F(CfgFileTest, DefaultFileIsReadIntoEveryValue) {
    writeCfg(defaultBytes());
    ReadCfgFile(cfgPath());
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC-05:00) Eastern Time (US & Canada)");
    EXPECT_EQ(settings.SeasonOfMonth, (MonthTexts{"Winter", "Winter", "Spring", "Spring", "Spring", "Summer",
                                                  "Summer", "Summer", "Fall", "Fall", "Fall", "Winter"}));
    EXPECT_EQ(settings.CustomSeasonOfMonth, MonthTexts());
    EXPECT_EQ(settings.WindClassMin, (ClassTexts{"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"}));
    EXPECT_EQ(settings.ZoomPercentText, "100");
    EXPECT_EQ(settings.ZoomListIndex, 3);
    EXPECT_EQ(settings.RadiusText, "25%");
    EXPECT_EQ(modPolarGraph.LabelFont, (FontRecord{0, "Arial", 8, false, false}));
    EXPECT_FALSE(modPolarGraph.ClassesFromFile);
    EXPECT_FALSE(modPolarGraph.ClassesInKnots);
    EXPECT_EQ(modPolarGraph.WindClassColor,
              (std::array<float, 6>{255.0F, 65280.0F, 16711680.0F, 65535.0F, 16776960.0F, 0.0F}));
    EXPECT_EQ(modPolarGraph.DirectionFont, (FontRecord{0, "Arial", 8, true, false}));
    EXPECT_EQ(modPolarGraph.PercentFont, (FontRecord{0, "Arial", 7, false, false}));
    EXPECT_EQ(modPolarGraph.LegendFont, (FontRecord{0, "Arial", 7, false, false}));
}

TEST_F(CfgFileTest, GridColourLosesItsEighthDigitAndStaysSo) {
    modPolarGraph.GridLineColor = 14737632.0F;
    WriteCfgFile(cfgPath());
    writeCfg(defaultWith(68, linesOf(cfgBytes())[67]));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630.0F);
}

TEST_F(CfgFileTest, WhiteReadsBackAboveTheColoursAndPaintsAsWhite) {
    writeCfg(defaultWith(42, "1.677722E+07"));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(modPolarGraph.WindClassColor[0], 16777220.0F);
    EXPECT_EQ(paintedColour(modPolarGraph.WindClassColor[0]), white);
}

TEST_F(CfgFileTest, WriterFollowsTheReadersOrderLineByLine) {
    setOwnValues();
    WriteCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), dataFile("own-values.cfg"));
}

TEST_F(CfgFileTest, RewritingTheDefaultsChangesNoByte) {
    writeCfg(defaultBytes());
    ReadCfgFile(cfgPath());
    std::filesystem::remove(cfgPath());
    WriteCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
}

TEST_F(CfgFileTest, OwnValuesComeBackTrimmed) {
    writeCfg(dataFile("own-values.cfg"));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(settings.DefaultTimeZone, "(UTC+01:00) Here");
    EXPECT_EQ(settings.CustomSeasonOfMonth[0], "c1");
    EXPECT_EQ(settings.CustomSeasonOfMonth[11], "kept blanks");
    EXPECT_EQ(settings.WindClassMin, (ClassTexts{"0.25", "-1", "1.5E1", "3", "", "x y"}));
    EXPECT_EQ(settings.ZoomListIndex, 14);
    EXPECT_EQ(modPolarGraph.LabelFont, (FontRecord{16711680.0F, "Times New Roman", 12, true, true}));
    EXPECT_TRUE(modPolarGraph.ClassesFromFile);
    EXPECT_EQ(modPolarGraph.DirectionFont, (FontRecord{255.0F, "Courier", -32768, false, true}));
    EXPECT_EQ(modPolarGraph.PercentFont, (FontRecord{65280.0F, "Padded", 32767, true, false}));
    EXPECT_EQ(modPolarGraph.LegendFont, (FontRecord{1.0F, "", 0, false, false}));
}

TEST_F(CfgFileTest, SecondCopyOfTheLabelFontCounts) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[34] = "255";
    lines[35] = "First";
    lines[47] = "65280";
    lines[48] = "Second";
    writeCfg(bytesOf(lines));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(modPolarGraph.LabelFont, (FontRecord{65280.0F, "Second", 8, false, false}));
}

TEST_F(CfgFileTest, BlanksRoundAnyValueAreAllowed) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    for (std::string& line : lines) line = "   " + line + "  ";
    writeCfg(bytesOf(lines));
    ReadCfgFile(cfgPath());
    WriteCfgFile(directory_.file("other.cfg"));
    EXPECT_EQ(directory_.read("other.cfg"), defaultBytes());
    EXPECT_EQ(cfgBytes(), bytesOf(lines)) << "what could be read is not replaced";
}

TEST_F(CfgFileTest, AnyLineEndAndAMissingLastOneAreRead) {
    std::string bytes;
    for (const std::string& line : linesOf(dataFile("own-values.cfg"))) bytes += line + "\n";
    bytes.pop_back();
    writeCfg(bytes);
    ReadCfgFile(cfgPath());
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630.0F);
    EXPECT_EQ(cfgBytes(), bytes);
}

TEST_F(CfgFileTest, BytesOfAnyEncodingComeBackUnchanged) {
    const std::string name = "Vent \xE9t\xE9 \xC3\xA9 \t";
    writeCfg(defaultWith(3, name));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(settings.CustomSeasonOfMonth[0], name) << "tabs are no blanks";
    WriteCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultWith(3, name));
}

TEST_F(CfgFileTest, MissingFileIsMadeAndNotRead) {
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.DefaultTimeZone, "");
    EXPECT_EQ(settings.ZoomListIndex, 0);
    EXPECT_EQ(modPolarGraph.LabelFont, FontRecord());
}

TEST_F(CfgFileTest, DefaultsGoToCfgFilePathWhateverFileWasRead) {
    ReadCfgFile(directory_.file("missing.cfg"));
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_FALSE(std::filesystem::exists(directory_.file("missing.cfg")));
}

TEST_F(CfgFileTest, FileCutOffKeepsWhatWasReadAndIsLost) {
    std::vector<std::string> lines = linesOf(dataFile("own-values.cfg"));
    lines.resize(40);
    writeCfg(bytesOf(lines));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.SeasonOfMonth[4], "Winter");
    EXPECT_EQ(settings.RadiusText, "37.5%");
    EXPECT_EQ(modPolarGraph.LabelFont, (FontRecord{16711680.0F, "Times New Roman", 12, true, true}));
    EXPECT_TRUE(modPolarGraph.ClassesFromFile) << "line 40";
    EXPECT_EQ(modPolarGraph.WindClassColor, (std::array<float, 6>{})) << "line 42 was not there";
    EXPECT_EQ(modPolarGraph.DirectionFont, FontRecord());
    ReadCfgFile(cfgPath());
    EXPECT_EQ(settings.RadiusText, "25%") << "the next read finds the defaults";
    EXPECT_EQ(modPolarGraph.DirectionFont, (FontRecord{0, "Arial", 8, true, false}));
}

struct FaultyLine {
    std::size_t line;
    const char* text;
};

class FaultyLineTest : public CfgFileTest, public testing::WithParamInterface<FaultyLine> {};

TEST_P(FaultyLineTest, EndsInTheDefaultFileSilently) {
    writeCfg(defaultWith(GetParam().line, GetParam().text));
    modPolarGraph.GridLineColor = 7.0F;
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.ZoomPercentText, "100") << "what stood before the fault was read";
    EXPECT_EQ(modPolarGraph.GridLineColor, 7.0F) << "what stood behind it was not";
}

INSTANTIATE_TEST_SUITE_P(Lines, FaultyLineTest,
                         testing::Values(FaultyLine{33, "three"}, FaultyLine{33, ""}, FaultyLine{33, "32768"},
                                         FaultyLine{33, "3 4"}, FaultyLine{35, "black"},
                                         FaultyLine{35, "1E+39"}, FaultyLine{37, "8pt"},
                                         FaultyLine{37, "99999"}, FaultyLine{38, "Yes"}, FaultyLine{38, ""},
                                         FaultyLine{39, "Tru"}, FaultyLine{40, "Falsee"},
                                         FaultyLine{41, "maybe"}, FaultyLine{42, "&HFF"},
                                         FaultyLine{47, "1.2.3"}, FaultyLine{55, "\t8"}, FaultyLine{66, "-"},
                                         FaultyLine{68, "nan"}, FaultyLine{68, "inf"}));

TEST_F(CfgFileTest, NumbersAreRoundedToTheirWidthAndBooleansTakeAnyCase) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[32] = "2.5";
    lines[36] = "8.25";
    lines[37] = "TRUE";
    lines[49] = "10.5";
    lines[50] = "true";
    writeCfg(bytesOf(lines));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(settings.ZoomListIndex, 2) << "halves go to the even neighbour";
    EXPECT_EQ(modPolarGraph.LabelFont, (FontRecord{0, "Arial", 10, true, false}));
    EXPECT_EQ(cfgBytes(), bytesOf(lines));
}

TEST_F(CfgFileTest, LinesBehindTheLastAreIgnoredAndGoneAfterAWrite) {
    writeCfg(defaultBytes() + "one more\r\n");
    ReadCfgFile(cfgPath());
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630.0F);
    EXPECT_EQ(cfgBytes(), defaultBytes() + "one more\r\n");
    WriteCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
}

TEST_F(CfgFileTest, HugeFilesAreRead) {
    const std::string long10M(10'000'000, 'z');
    writeCfg(defaultWith(1, long10M));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(settings.DefaultTimeZone, long10M);
    EXPECT_EQ(modPolarGraph.GridLineColor, 14737630.0F);

    writeCfg(defaultWith(33, long10M));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());

    writeCfg(long10M);
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());

    writeCfg(std::string(10'000'000, '\n'));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
}

TEST_F(CfgFileTest, EmptyAndBinaryFilesAreReplaced) {
    writeCfg("");
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
    writeCfg(std::string(5000, '\0'));
    ReadCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), defaultBytes());
}

TEST_F(CfgFileTest, DirectoryInItsPlaceIsSilentAndStays) {
    std::filesystem::create_directory(cfgPath());
    ReadCfgFile(cfgPath());
    WriteCfgFile(cfgPath());
    WriteDefaultCfgFile();
    EXPECT_TRUE(std::filesystem::is_directory(cfgPath()));
    EXPECT_TRUE(std::filesystem::is_empty(cfgPath()));
}

TEST_F(CfgFileTest, MissingDirectoryIsSilent) {
    settings.CfgFilePath = directory_.file("missing/Zephyrgraph.cfg");
    ReadCfgFile(settings.CfgFilePath);
    WriteCfgFile(settings.CfgFilePath);
    EXPECT_FALSE(std::filesystem::exists(directory_.file("missing")));
    settings.CfgFilePath.clear();
    WriteDefaultCfgFile();
    EXPECT_TRUE(std::filesystem::is_empty(directory_.path()));
}

TEST_F(CfgFileTest, FailedWriteLeavesTheDefaultFile) {
    setOwnValues();
    WriteCfgFile(directory_.file("missing/other.cfg"));
    EXPECT_EQ(cfgBytes(), defaultBytes());
    EXPECT_EQ(settings.RadiusText, "37.5%") << "the values in memory stay";
}

TEST_F(CfgFileTest, FullDiskLeavesTheDefaultFile) {
    setOwnValues();
    WriteCfgFile("/dev/full");
    EXPECT_EQ(cfgBytes(), defaultBytes());
}

TEST_F(CfgFileTest, ReadOnlyFileKeepsItsBytesWhereTheSystemForbidsWriting) {
    writeCfg(defaultBytes());
    std::filesystem::permissions(cfgPath(), std::filesystem::perms::owner_read);
    // An administrator may write to it all the same.
    const bool mayWrite = access(cfgPath().c_str(), W_OK) == 0;
    setOwnValues();
    WriteCfgFile(cfgPath());
    EXPECT_EQ(cfgBytes(), mayWrite ? dataFile("own-values.cfg") : defaultBytes());
}

}  // namespace
