#pragma once

#include <string>

#include "base/Host.h"
#include "base/Paths.h"
#include "processing/ProcessStarter.h"

namespace zg {

/// Shows a text file in the platform's viewer through the batch file open_file.bat, which exists in the
/// directory for the second that this takes. Raises the error of a file that cannot be written or deleted,
/// and 52 for a path that a batch file cannot contain.
void ViewTextFile(Host& host, ProcessStarter& starter, const std::string& path, const std::string& directory,
                  char separator = pathSeparator);

}  // namespace zg
