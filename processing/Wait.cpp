#include "processing/Wait.h"

namespace zg {

void WaitMs(Host& host, std::int32_t ms) {
    WaitMs(host, ms, [] { return false; });
}

void WaitMs(Host& host, std::int32_t ms, const std::function<bool()>& over) {
    const std::int64_t end = host.tickCount() + ms;
    for (std::int64_t left = ms; left > 0 && !over(); left = end - host.tickCount())
        host.pumpEvents(static_cast<int>(left));
}

}  // namespace zg
