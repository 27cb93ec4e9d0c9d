// The companion as a command: arguments, exit status and streams.

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "tests/export/CompanionRun.h"
#include "tests/support/TempDirectory.h"

namespace {

TEST(Companion, NamesThePicturesThatItDrew) {
    const TempDirectory directory;
    const Result result =
        runCompanion({sample, "--rose", "2", "--out", QString::fromStdString(directory.path())});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out.trimmed().toStdString(), directory.file("LOVETT_1988_02.png"));
    EXPECT_TRUE(result.errors.isEmpty()) << result.errors.toStdString();
}

TEST(Companion, HelpTellsItsWords) {
    const Result result = runCompanion({"--help"});
    EXPECT_EQ(result.status, 0);
    for (const char* word :
         {"--rose", "--size", "--format", "--out", "--tables", "--min-valid", "--jobs", "--quiet"})
        EXPECT_TRUE(result.out.contains(word)) << word;
}

TEST(Companion, TellsItsVersion) {
    const Result result = runCompanion({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out.trimmed().toStdString(), "zephyrgraph-export 4.9");
    EXPECT_TRUE(result.errors.isEmpty()) << result.errors.toStdString();
}

TEST(Companion, WrongUsageIsStatusTwo) {
    EXPECT_EQ(runCompanion({}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--format", "gif"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--size", "0"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--size", "1000000"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--size", "x"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--unknown"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--jobs", "0"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--min-valid", "101"}).status, 2);
    EXPECT_EQ(runCompanion({sample, sample}).status, 2);
}

TEST(Companion, ARefusedFileIsStatusOneWithItsMessage) {
    const TempDirectory directory;
    const std::string path = directory.write("x.frq", "no\n");
    const Result result = runCompanion({QString::fromStdString(path)});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.toStdString(), "The FRQ File " + path + " is not in the correct data format.\n");
    EXPECT_TRUE(result.out.isEmpty());
}

TEST(Companion, TablesGoToStandardOutput) {
    const Result result = runCompanion({sample, "--tables"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.startsWith("{"));
    EXPECT_TRUE(result.out.contains("\"FrqRoseCount\": 9"));
}

TEST(Companion, ANameInBracketsIsAName) {
    const TempDirectory directory;
    const std::filesystem::path inside = std::filesystem::path(directory.path()) / "[a]";
    std::filesystem::create_directory(inside);
    std::filesystem::copy(sample.toStdString(), inside / "one.frq");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path());
    const Result result = runCompanion({"[a]", "--rose", "1", "--size", "32", "--out", "[a]"});
    std::filesystem::current_path(before);
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    EXPECT_TRUE(std::filesystem::exists(inside / "one_01.png"));
}

TEST(Companion, HelpFitsAScreen) {
    const Result result = runCompanion({"--help"});
    EXPECT_LE(result.out.count('\n'), 40);
    for (const QByteArray& line : result.out.split('\n')) EXPECT_LE(line.size(), 80) << line.toStdString();
    EXPECT_TRUE(result.out.contains("Examples:"));
}

TEST(Companion, HelpForAllExplainsEachOption) {
    const Result result = runCompanion({"--help-all"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.contains("Percent at the outer ring"));
    EXPECT_TRUE(result.out.contains("A time is begin or end of its record"));
}

TEST(Companion, HelpTellsTheWordsOfLooks) {
    const Result result = runCompanion({"--help"});
    for (const char* word :
         {"--palette", "--hatch", "--radius", "--same-scale", "--rings", "--sector-width", "--numbers",
          "--calm-circle", "--units", "--panel", "--beside-table", "--html", "--pdf"})
        EXPECT_TRUE(result.out.contains(word)) << word;
}

TEST(Companion, LooksWithoutSenseAreWrongUsage) {
    EXPECT_EQ(runCompanion({sample, "--palette", "rainbow"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--radius", "0"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--radius", "30", "--same-scale"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--rings", "0"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--sector-width", "23"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--units", "furlongs"}).status, 2);
    EXPECT_EQ(runCompanion({sample, "--panel", "3"}).status, 2);
}

TEST(Companion, WordsOfLooksReachThePicture) {
    const TempDirectory directory;
    const Result result =
        runCompanion({sample, "--rose", "1", "--format", "svg", "--palette", "viridis", "--units", "km/h",
                      "--numbers", "--radius", "15", "--out", QString::fromStdString(directory.path())});
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    const std::string svg = directory.read("LOVETT_1988_01.svg");
    for (const char* part : {"fill=\"#440154\"", "1.8 to 6.48 km/h", "<g class=\"numbers\">", ">15%<"})
        EXPECT_NE(svg.find(part), std::string::npos) << part;
}

TEST(Companion, APanelIsAsWideAsItsColumnsNeedUnlessItsSizeIsAsked) {
    const TempDirectory directory;
    const QStringList words = {
        sample, "--format", "svg", "--panel", "4x3", "--out", QString::fromStdString(directory.path())};
    EXPECT_EQ(runCompanion(words).status, 0);
    EXPECT_NE(directory.read("panel_01.svg").find(" width=\"1200\""), std::string::npos);
    EXPECT_EQ(runCompanion(words + QStringList{"--size", "600"}).status, 0);
    EXPECT_NE(directory.read("panel_01.svg").find(" width=\"600\""), std::string::npos);
}

}  // namespace
