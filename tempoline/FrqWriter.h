#pragma once

// The frequencies as the desktop program loads them: an FRQ file of version 2.3.

#include <string>

#include "tempoline/RoseReport.h"

namespace zg::tempoline {

/// The whole text. A rose whose total is 0 is left out, since its reader divides by it; without any record in
/// the period there is no rose at all, which is shown as "ALL DATA ARE MISSING".
std::string frqText(const RoseReport& report);

}  // namespace zg::tempoline
