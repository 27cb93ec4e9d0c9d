#pragma once

#include <functional>
#include <string>

#include "base/Paths.h"
#include "processing/ProcessStarter.h"

/// A stand-in for the processor: counts the starts and does what a test says at each.
class FakeStarter : public zg::ProcessStarter {
 public:
    void start(const std::string& batchFile, zg::WindowStyle style) override {
        ++starts;
        lastFile = batchFile;
        lastStyle = style;
        if (onStart) onStart(zg::DirOf(batchFile));
    }
    void startRun(const zg::RunBatch& run) override {
        if (!onRun) return ProcessStarter::startRun(run);
        ++starts;
        onRun(run);
    }
    std::string outcome(const std::string& batchFile) override {
        return batchFile == lastFile ? told : "of another run";
    }

    std::function<void(const std::string& directory)> onStart;
    std::function<void(const zg::RunBatch& run)> onRun;  ///< called instead of onStart
    int starts = 0;
    std::string lastFile;
    zg::WindowStyle lastStyle = zg::WindowStyle::NormalFocus;
    std::string told;  ///< the outcome of the last start
};
