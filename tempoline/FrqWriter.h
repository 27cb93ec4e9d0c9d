#pragma once

// Writes the frequencies in the form the desktop program loads: an FRQ file of version 2.3.

#include <string>

#include "tempoline/RoseReport.h"

namespace zg::tempoline {

/// The whole text. A rose whose total is 0 is left out, because its reader divides by the total; if the
/// period has no records at all, there is no rose, and the desktop program shows "ALL DATA ARE MISSING".
std::string frqText(const RoseReport& report);

}  // namespace zg::tempoline
