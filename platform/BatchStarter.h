#pragma once

#include <QTemporaryDir>
#include <map>
#include <memory>

#include "processing/ProcessStarter.h"

namespace zg {

/// Starts batch files on this platform: by the shell if it supports them, otherwise by executing their lines,
/// if these are what the program itself writes for that place.
class BatchStarter : public ProcessStarter {
 public:
    void start(const std::string& batchFile, WindowStyle style) override;
    std::string outcome(const std::string& batchFile) override;

 private:
    std::string newReport(const std::string& batchFile);

    std::unique_ptr<QTemporaryDir> reports_;            ///< created at the first run
    std::map<std::string, std::string> reportOfBatch_;  ///< for the last start of each batch file
    int runs_ = 0;
};

}  // namespace zg
