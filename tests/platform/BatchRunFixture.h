#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "platform/BatchScript.h"
#include "platform/BatchStarter.h"
#include "processing/BatchFile.h"
#include "tests/support/CarriedOut.h"
#include "tests/support/StandIn.h"
#include "tests/support/TempDirectory.h"

namespace zg {

constexpr int longEnoughMs = 60'000;

/// The directories of a run, both with shell metacharacters in their names, and what stands for the
/// processor.
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
    void standIn(const std::string& lines) {
        makeStandIn(directory_.file("program's dir/tempoline.exe"), lines);
    }
    void processor(const std::string& script) {
        executable("program's dir/tempoline.exe", "#!/bin/sh\n" + script);
    }
    std::string batchFile() const { return out_ + pathSeparator + "run_tempoline.bat"; }
    void writeBatchFile(const std::vector<std::string>& lines) {
        LineWriter file(batchFile());
        for (const std::string& line : lines) file.writeLine(line);
        file.close();
    }
    RunBatch batch(const std::string& base) const { return {out_ + pathSeparator, base, programs_}; }
    void start(const std::string& base = "B") {
        writeBatchFile(batchLines(batch(base)));
        starter_.startRun(batch(base));
    }
    /// Runs the lines to their end; returns the text that the terminal shows.
    std::string carryOut(const std::string& base = "B", const std::string& report = "") {
        if (onWindows) writeBatchFile(batchLines(batch(base)));
        return carriedOut(batch(base), report);
    }
    bool isThere(const std::string& name) const { return fileExists(out_ + pathSeparator + name); }
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
