#pragma once

// One run: reads a control file and writes all its results or none.

#include <string>

#include "tempoline/Failure.h"

namespace zg::tempoline {

/// Executes the run of that control file in the current directory. The listing reports it in every case;
/// errors also go to standard error, on one line.
ExitStatus run(const std::string& controlFile);

}  // namespace zg::tempoline
