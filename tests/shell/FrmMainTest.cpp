#include "shell/FrmMain.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Pixels.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

const std::string sample = inSources("data/samples/LOVETT_1988.frq");

class FrmMainTest : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        window_ = std::make_unique<frmMain>(host_);
        window_->show();
    }

    void open(const std::string& path) {
        host_.openAnswers.push_back(path);
        window_->menuAction("mnuFileOption_1")->trigger();
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmMain> window_;
};

TEST_F(FrmMainTest, StartsUnderItsNameWithoutAFile) {
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph");
    EXPECT_FALSE(modPolarGraph.FrqLoaded);
}

TEST_F(FrmMainTest, OpeningAFileNamesItAndShowsItsFirstRose) {
    open(sample);
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - LOVETT_1988.frq");
    EXPECT_TRUE(modPolarGraph.FrqLoaded);
    EXPECT_EQ(modPolarGraph.CurrentRose, 1);
    ASSERT_EQ(host_.openPicks.size(), 1U);
    EXPECT_EQ(host_.openPicks[0].filter, "Frequency File (*.frq) | *.frq; |All Files (*.*) | *.*");
    EXPECT_EQ(host_.openPicks[0].filterIndex, 1);
    EXPECT_EQ(host_.openPicks[0].fileName, "");
}

TEST_F(FrmMainTest, TheNextPickerStartsWhereTheLastFileLay) {
    open(sample);
    EXPECT_EQ(modPolarGraph.WorkDir, inSources("data/samples/"));
    open("");
    EXPECT_EQ(host_.openPicks[1].directory, inSources("data/samples/"));
}

TEST_F(FrmMainTest, ACancelledPickerChangesNothing) {
    modPolarGraph.WorkDir = "kept";
    open("");
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph");
    EXPECT_EQ(modPolarGraph.WorkDir, "kept");
}

TEST_F(FrmMainTest, ARefusedFileIsToldAndTheFormerRoseStays) {
    open(sample);
    const std::string title = modPolarGraph.GraphTitle;
    const QImage before = window_->controls().pgPolarGraph->pageImage().copy();
    const std::string junk = directory_.write("junk.frq", std::string("\0\xff\x01junk", 7));
    host_.boxAnswers = {BoxAnswer::Ok};
    open(junk);
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "The FRQ File " + junk + " is not in the correct data format.");
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - junk.frq");
    EXPECT_EQ(modPolarGraph.GraphTitle, title);
    EXPECT_TRUE(samePicture(window_->controls().pgPolarGraph->pageImage(), before));
}

struct BadFile {
    const char* name;
    std::string bytes;
    const char* message;
};

class FrmMainBadFile : public FrmMainTest, public ::testing::WithParamInterface<BadFile> {};

TEST_P(FrmMainBadFile, IsToldByNumberAndTheProgramGoesOn) {
    const std::string path = directory_.write("bad.frq", GetParam().bytes);
    host_.boxAnswers = {BoxAnswer::Ok};
    open(path);
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, GetParam().message);
    open(sample);
    EXPECT_TRUE(modPolarGraph.FrqLoaded);
    EXPECT_EQ(modPolarGraph.FrqRoseCount, 9);
}

const std::string headOf22 = "WIND.FRQ        2.2             Zephyrgraph FRQ File Format\r\n";

INSTANTIATE_TEST_SUITE_P(
    Kinds, FrmMainBadFile,
    ::testing::Values(
        BadFile{"Empty", "",
                "Run-time error '62':\n\nInput past end of file\n\nbad.frq, line 1: the version of "
                "the format, found the end of the file"},
        BadFile{"CountIsNoNumber", headOf22 + "x - comments\r\n",
                "Run-time error '13':\n\nType mismatch\n\nbad.frq, line 2: the number of comment "
                "lines, up to 32767, found \"x - comments\""},
        BadFile{"PromisesFortyThousandComments", headOf22 + "40000 - comments\r\n",
                "Run-time error '6':\n\nOverflow\n\nbad.frq, line 2: the number of comment "
                "lines, up to 32767, found \"40000 - comments\""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(FrmMainTest, ARowThatLacksAPercentageIsToldWithItsLine) {
    std::string bytes = readWholeFile(sample);
    const std::string row = "NNE :    5.4256%    2.2941%    0.4818%    0.0229%    0.0000%    0.0000%";
    const std::size_t at = bytes.find(row);
    ASSERT_NE(at, std::string::npos);
    bytes.erase(at + row.rfind(' '), std::string(" 0.0000%").size());
    host_.boxAnswers = {BoxAnswer::Ok};
    open(directory_.write("LOVETT.frq", bytes));
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text,
              "Run-time error '13':\n\nType mismatch\n\nLOVETT.frq, line 14: six percentages, found five");
}

TEST_F(FrmMainTest, TheTitleHasTheFilesNameAsItIs) {
    int tried = 0;
    for (const std::string name : {"a[*]b.frq", "[*][*].frq", "& <b>x.frq", "two  words .frq", "%1 %n.frq"}) {
        if (onWindows && name.find_first_of("*<>") != std::string::npos) continue;  // it has no such names
        ++tried;
        const std::string path = directory_.file(name);
        std::filesystem::copy(sample, path);
        open(path);
        EXPECT_EQ(window_->windowHandle()->title().toStdString(), "Zephyrgraph - " + name);
    }
    EXPECT_EQ(tried, onWindows ? 2 : 5);
}

TEST_F(FrmMainTest, AMissingFileAndADirectoryAreTold) {
    host_.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    open(directory_.file("nowhere.frq"));
    open(directory_.path());
    ASSERT_EQ(host_.boxes.size(), 2U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '53':\n\nFile not found\n\nnowhere.frq");
    EXPECT_EQ(host_.boxes[1].text,
              "Run-time error '75':\n\nPath/File access error\n\n" + FileNameOf(directory_.path()));
}

TEST_F(FrmMainTest, ThePlotFollowsTheWindowsSize) {
    window_->resize(900, 800);
    const QSize wide = window_->controls().pgPolarGraph->size();
    window_->resize(500, 500);
    EXPECT_LT(window_->controls().pgPolarGraph->width(), wide.width());
}

}  // namespace
}  // namespace zg
