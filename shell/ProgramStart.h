#pragma once

#include "base/Host.h"

namespace zg {

/// From the splash to the end of the program; gives the number that the process ends with. A window that was
/// closed, or an exit that was chosen, while the splash still waits ends it at once.
int runProgram(Host& host);

}  // namespace zg
