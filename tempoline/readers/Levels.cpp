#include "tempoline/readers/Levels.h"

#include <algorithm>

namespace zg::tempoline {

bool hasComponents(const Wind& wind) { return hasSpeed(wind) && (wind.speed == 0 || hasDirection(wind)); }

Wind windAtHeight(const std::vector<Level>& levels, double height) {
    const auto above = std::lower_bound(levels.begin(), levels.end(), height - sameHeight,
                                        [](const Level& level, double z) { return level.height < z; });
    if (above == levels.end()) return {};
    if (above->height <= height + sameHeight) return above->wind;
    if (above == levels.begin()) return {};
    const Level& below = *(above - 1);
    if (!hasComponents(below.wind) || !hasComponents(above->wind)) return {};
    const double share = (height - below.height) / (above->height - below.height);
    const Components low = componentsOf(below.wind);
    const Components high = componentsOf(above->wind);
    return windOf({low.u + share * (high.u - low.u), low.v + share * (high.v - low.v)});
}

}  // namespace zg::tempoline
