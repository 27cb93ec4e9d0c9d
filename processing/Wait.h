#pragma once

#include <cstdint>
#include <functional>

#include "base/Host.h"

namespace zg {

/// Stays for at least so many milliseconds of the host's clock and serves the window's events meanwhile, so
/// that handlers run within it. A wait of 0 or less returns at once.
void WaitMs(Host& host, std::int32_t ms);

/// The same, over at once when it is no longer wanted.
void WaitMs(Host& host, std::int32_t ms, const std::function<bool()>& over);

}  // namespace zg
