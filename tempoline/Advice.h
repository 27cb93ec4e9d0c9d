#pragma once

// What a person is warned of when the records of an output and the steps of the run do not suit each other.

#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/RecordCounts.h"

namespace zg::tempoline {

/// Each says what was found and what to choose instead; nothing where all is well.
std::vector<std::string> adviceOn(const RecordCounts& records, const Control& control);

}  // namespace zg::tempoline
