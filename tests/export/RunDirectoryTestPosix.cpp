// What a companion that was killed leaves among the temporary files.

#include <QTest>
#include <algorithm>
#include <csignal>
#include <filesystem>

#include "base/Files.h"
#include "base/Lines.h"
#include "tests/export/CompanionRun.h"
#include "tests/support/TempDirectory.h"

namespace {

namespace fs = std::filesystem;

class KilledCompanion : public ::testing::Test {
 protected:
    void SetUp() override {
        for (const char* name : {"bin", "tmp", "out"}) zg::makeDirectory(directory_.file(name));
        fs::copy(ZG_COMPANION, directory_.file("bin/zephyrgraph-export"));
        const std::string processor = directory_.write("bin/tempoline.exe",
                                                       "#!/bin/sh\necho $$ > part && mv part working\n"
                                                       "exec sleep 300\n");
        fs::permissions(processor, fs::perms::owner_all);
        directory_.write("winds.csv", "time,ws,wd\n2016-01-01 00:00,3,90\n2016-01-01 01:00,4,180\n");
    }
    void prepare(QProcess& process) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), QString::fromStdString(directory_.file("tmp")));
        process.setProcessEnvironment(environment);
    }
    QStringList words() const {
        return {QString::fromStdString(directory_.file("winds.csv")), QStringLiteral("--out"),
                QString::fromStdString(directory_.file("out")), QStringLiteral("--rose"),
                QStringLiteral("1")};
    }
    /// Those of the companion; the toolkit has a directory of its own there.
    std::ptrdiff_t temporaries() const {
        const std::vector<std::string> names = zg::namesIn(directory_.file("tmp"));
        return std::count_if(names.begin(), names.end(),
                             [](const std::string& name) { return name.starts_with("zephyrgraph-"); });
    }

    /// The file by which the processor tells that it works; "" before.
    std::string working() const {
        for (const auto& entry : fs::recursive_directory_iterator(directory_.file("tmp")))
            if (entry.path().filename() == "working") return entry.path().string();
        return {};
    }
    /// Kills a companion while its processor works, and then the processor.
    void leaveADirectory() {
        QProcess companion;
        prepare(companion);
        companion.start(QString::fromStdString(directory_.file("bin/zephyrgraph-export")), words());
        ASSERT_TRUE(QTest::qWaitFor([this] { return !working().empty(); }, 60000))
            << companion.readAllStandardError().toStdString();
        companion.kill();
        companion.waitForFinished();
        ASSERT_EQ(kill(std::stoi(zg::readWholeFile(working())), SIGKILL), 0);
    }

    TempDirectory directory_;
};

TEST_F(KilledCompanion, LeavesADirectoryThatTheNextOneRemoves) {
    leaveADirectory();
    ASSERT_EQ(temporaries(), 2) << "a directory and its lock";
    const Result result = runCompanion(words(), [this](QProcess& process) { prepare(process); });
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    EXPECT_EQ(temporaries(), 0);
}

TEST_F(KilledCompanion, TakesNothingFromOneThatGoesOn) {
    QProcess companion;
    prepare(companion);
    companion.start(QString::fromStdString(directory_.file("bin/zephyrgraph-export")), words());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !working().empty(); }, 60000));
    const std::string before = working();
    const Result result = runCompanion(words(), [this](QProcess& process) { prepare(process); });
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    EXPECT_EQ(working(), before) << "it still has its directory";
    companion.terminate();
    companion.waitForFinished();
    EXPECT_EQ(temporaries(), 0) << "and removes that at its end";
}

// A place where not even the system's administrator may make anything.
TEST(RunDirectory, ThatCannotBeMadeIsToldWithItsPlace) {
    const TempDirectory directory;
    const std::string winds =
        directory.write("winds.csv", "time,ws,wd\n2016-01-01 00:00,3,90\n2016-01-01 01:00,4,180\n");
    const Result result = runCompanion(
        {QString::fromStdString(winds), QStringLiteral("--out"), QString::fromStdString(directory.path())},
        [](QProcess& process) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("TMPDIR"), QStringLiteral("/proc"));
            process.setProcessEnvironment(environment);
        });
    EXPECT_EQ(result.status, 1);
    const std::string told = result.errors.toStdString();
    EXPECT_NE(told.find("/proc/: no directory for temporary files can be made there: No such file"),
              std::string::npos)
        << told;
}

}  // namespace
