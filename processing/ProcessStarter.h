#pragma once

#include <string>

namespace zg {

enum class WindowStyle { Hidden, NormalFocus };

/// Starts a batch file as a separate process and does not wait for it. On a platform whose shell does not
/// support batch files it executes the lines itself, provided the program writes such lines.
class ProcessStarter {
 public:
    virtual ~ProcessStarter() = default;

    /// Raises 53 if the file is missing, 5 if it cannot be started or has other lines.
    virtual void start(const std::string& batchFile, WindowStyle style) = 0;

    /// Why the last start of that batch file leaves no marker, in one line, once that is known; "" before,
    /// and on platforms that do not report it.
    virtual std::string outcome(const std::string& /*batchFile*/) { return {}; }
};

}  // namespace zg
