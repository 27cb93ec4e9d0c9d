#pragma once

// One run: a control file in, its results out, all of them or none.

#include <string>

#include "tempoline/Failure.h"

namespace zg::tempoline {

/// Carries out the run that the control file of that path asks for, in the current directory. Whatever
/// happens is told in the listing; what went wrong also on standard error, in one line.
ExitStatus run(const std::string& controlFile);

}  // namespace zg::tempoline
