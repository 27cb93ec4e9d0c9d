#pragma once

// Warnings for a run whose records do not suit its steps.

#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/RecordCounts.h"

namespace zg::tempoline {

/// Each text says what was found and what to choose instead; empty if all is well.
std::vector<std::string> adviceOn(const RecordCounts& records, const Control& control);

}  // namespace zg::tempoline
