// The companion as a command: its words, its exit status and its streams.

#include <gtest/gtest.h>

#include <QProcess>

#include "base/Paths.h"
#include "tests/support/TempDirectory.h"

namespace {

const QString sample = QStringLiteral(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");

struct Result {
    int status = -1;
    QByteArray out;
    QByteArray errors;
};

Result runCompanion(const QStringList& words) {
    QProcess process;
    process.start(QStringLiteral(ZG_COMPANION), words);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

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

}  // namespace
