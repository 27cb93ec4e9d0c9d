#pragma once

#include <string>

namespace zg {

enum class WindowStyle { Hidden, NormalFocus };

/// Starts a batch file as a process of its own and does not wait for it. A platform whose shell knows no
/// batch files carries out the lines of the file in its own way, as far as the program writes such lines.
class ProcessStarter {
 public:
    virtual ~ProcessStarter() = default;

    /// Raises 53 where the file is missing, 5 where it cannot be started or holds other lines.
    virtual void start(const std::string& batchFile, WindowStyle style) = 0;

    /// Why the last start of that batch file leaves no marker, in one line, once that is known; "" before,
    /// and on platforms that tell nothing.
    virtual std::string outcome(const std::string& /*batchFile*/) { return {}; }
};

}  // namespace zg
