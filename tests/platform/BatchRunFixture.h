#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "platform/BatchScript.h"
#include "platform/BatchStarter.h"
#include "platform/QtText.h"
#include "processing/BatchFile.h"
#include "tests/support/TempDirectory.h"

namespace zg {

constexpr int longEnoughMs = 60'000;

/// The directories of a run, both with shell metacharacters in their names, and a processor that is a script.
class BatchRun : public ::testing::Test {
 protected:
    void SetUp() override {
        std::filesystem::create_directories(out_);
        std::filesystem::create_directories(programs_);
        directory_.write("out dir/B_tempoline.inp", "control");
        applicationDirectory = programs_;
    }
    void executable(const std::string& name, const std::string& content) {
        std::filesystem::permissions(directory_.write(name, content), std::filesystem::perms::owner_all);
    }
    void processor(const std::string& script) {
        executable("program's dir/tempoline.exe", "#!/bin/sh\n" + script);
    }
    std::string batchFile() const { return out_ + "/run_tempoline.bat"; }
    void writeBatchFile(const std::vector<std::string>& lines) {
        LineWriter file(batchFile());
        for (const std::string& line : lines) file.writeLine(line);
        file.close();
    }
    void start(const std::string& base = "B") {
        writeBatchFile(batchLines({out_ + "/", base, programs_}));
        starter_.startRun({out_ + "/", base, programs_});
    }
    /// Runs the lines to their end; returns the text that the terminal shows.
    std::string carryOut(const std::string& base = "B", const std::string& report = "") {
        QProcess shell;
        shell.start(QStringLiteral("sh"),
                    {QStringLiteral("-c"), fileName(asShellScript({out_ + "/", base, programs_}, report))});
        EXPECT_TRUE(shell.waitForFinished(longEnoughMs));
        return shell.readAllStandardError().toStdString();
    }
    bool isThere(const std::string& name) const { return fileExists(out_ + "/" + name); }
    bool comes(const std::string& name) {
        return QTest::qWaitFor([&] { return isThere(name); }, longEnoughMs);
    }
    /// The starter's final message.
    std::string outcome() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !starter_.outcome(batchFile()).empty(); }, longEnoughMs));
        return starter_.outcome(batchFile());
    }

    TempDirectory directory_;
    std::string out_ = directory_.file("out dir");
    std::string programs_ = directory_.file("program's dir");
    BatchStarter starter_;
};

}  // namespace zg
