#pragma once

#include <string>

namespace zg {

enum class WindowStyle { Hidden, NormalFocus };

/// Starts a batch file as a process of its own and does not wait for it. A platform whose shell knows no
/// batch files carries out the lines of the file in its own way.
class ProcessStarter {
 public:
    virtual ~ProcessStarter() = default;

    /// Raises 53 where the file is missing, 5 where it cannot be started.
    virtual void start(const std::string& batchFile, WindowStyle style) = 0;
};

}  // namespace zg
