#pragma once

#include <QTemporaryDir>
#include <map>
#include <memory>

#include "processing/ProcessStarter.h"

namespace zg {

/// Starts batch files on this platform: by the shell if it supports them. Otherwise it does itself what the
/// program wrote into them, and refuses a file that has other lines by then.
class BatchStarter : public ProcessStarter {
 public:
    void start(const std::string& batchFile, WindowStyle style) override;
    void startRun(const RunBatch& run) override;
    void startViewer(const std::string& batchFile, const std::string& path) override;
    std::string outcome(const std::string& batchFile) override;

 private:
    std::string newReport(const std::string& batchFile);

    std::unique_ptr<QTemporaryDir> reports_;            ///< created at the first run
    std::map<std::string, std::string> reportOfBatch_;  ///< for the last start of each batch file
    int runs_ = 0;
};

}  // namespace zg
