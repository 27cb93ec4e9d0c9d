#pragma once

#include "tempoline/Control.h"

namespace zg::tempoline {

/// Throws a Failure of status BadControl where the period has more steps than the data can fill ten times
/// over, so that a wrong year does not write gigabytes of missing winds. Small results pass, and so do data
/// of unknown size, such as a pipe.
void needDataForPeriod(const Control& control);

}  // namespace zg::tempoline
