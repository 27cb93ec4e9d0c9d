#pragma once

#include "base/Host.h"

namespace zg {

/// From the splash to the end of the program; returns the exit status. Closing the window, or choosing Exit,
/// while the splash still waits ends it at once.
int runProgram(Host& host);

}  // namespace zg
