#pragma once

#include <string>

#include "processing/BatchFile.h"

/// Does what the batch file of a run says, to its end, without a console that a person sees. Returns what was
/// written to the standard error. On Linux its names must be UTF-8, and a run without a marker leaves its
/// reason in the report (see asShellScript).
std::string carriedOut(const zg::RunBatch& run, const std::string& report = "");
