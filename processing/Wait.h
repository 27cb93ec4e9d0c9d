#pragma once

#include <cstdint>
#include <functional>

#include "base/Host.h"

namespace zg {

/// Waits for at least this many milliseconds of the host's clock and serves the window's events meanwhile, so
/// that handlers run during the call. Returns at once for 0 or less.
void WaitMs(Host& host, std::int32_t ms);

/// The same, but returns as soon as it is no longer wanted.
void WaitMs(Host& host, std::int32_t ms, const std::function<bool()>& over);

}  // namespace zg
