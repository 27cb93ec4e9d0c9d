#pragma once

// Maps and angles as the listing prints them.

#include <string>

#include "tempoline/Control.h"

namespace zg::tempoline {

/// "LCC, RLAT0 = 40N, RLON0 = 97W, ...": all parameters that matter for the projection, and the datum.
std::string mapText(const MapSetting& map);

/// "km", or "degrees" for LL.
const char* unitOf(const MapSetting& map);

}  // namespace zg::tempoline
