#pragma once

#include <string>

#include "base/Host.h"

namespace zg {

/// From the splash to the end of the program; returns the exit status. Closing the window, or choosing Exit,
/// while the splash still waits ends it at once. An FRQ file that is given is opened when the window is
/// shown.
int runProgram(Host& host, const std::string& frqFile = {});

/// The directory for the program's own files in the user's configuration; it need not exist.
std::string userConfigDirectory();

}  // namespace zg
