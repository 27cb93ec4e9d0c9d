#pragma once

#include "tempoline/Control.h"

namespace zg::tempoline {

/// Throws a Failure of status BadControl if the period has more than ten times the steps that the data can
/// fill, so that a mistyped year does not write gigabytes of missing winds. Small results are allowed, and so
/// are data of unknown size, such as a pipe.
void needDataForPeriod(const Control& control);

}  // namespace zg::tempoline
