#pragma once

#include <cstdint>

#include "base/Host.h"

namespace zg {

/// Stays for at least so many milliseconds of the host's clock and serves the window's events meanwhile, so
/// that handlers run within it. A wait of 0 or less returns at once.
void WaitMs(Host& host, std::int32_t ms);

}  // namespace zg
