#pragma once

#include <string>

#include "processing/BatchFile.h"

namespace zg {

enum class WindowStyle { Hidden, NormalFocus };

/// Starts a batch file as a separate process and does not wait for it. The caller has written the file and
/// says what is in it: a platform whose shell does not support batch files does the same in its own way.
class ProcessStarter {
 public:
    virtual ~ProcessStarter() = default;

    /// Uses the platform's shell. Raises 53 if the file is missing, 5 if it cannot be started.
    virtual void start(const std::string& batchFile, WindowStyle style) = 0;

    /// Starts a run whose batch file is written. Raises what start raises, and 5 if the file has other lines
    /// by now.
    virtual void startRun(const RunBatch& run) { start(run.path(), WindowStyle::NormalFocus); }

    /// Starts the viewer of a text file; its batch file is written. Raises what startRun raises.
    virtual void startViewer(const std::string& batchFile, const std::string& /*path*/) {
        start(batchFile, WindowStyle::Hidden);
    }

    /// Why the last start of that batch file leaves no marker, in one line, once that is known; "" before,
    /// and on platforms that do not report it.
    virtual std::string outcome(const std::string& /*batchFile*/) { return {}; }
};

}  // namespace zg
