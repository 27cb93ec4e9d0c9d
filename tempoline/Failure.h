#pragma once

// Why a run ends early, and the exit status it then gives.

#include <stdexcept>
#include <string>

namespace zg::tempoline {

enum class ExitStatus : int {
    Completed = 0,
    Failed = 1,      ///< the data, or the disk
    BadControl = 2,  ///< the control file or the command line
    Interrupted = 130,
};

/// One line of text: "file:line: field: what is wrong".
class Failure : public std::runtime_error {
 public:
    Failure(ExitStatus exitStatus, const std::string& message)
        : std::runtime_error(message), status(exitStatus) {}

    ExitStatus status;
};

}  // namespace zg::tempoline
