#include "tempoline/readers/Levels.h"

#include <algorithm>

namespace zg::tempoline {

bool hasComponents(const Wind& wind) { return hasSpeed(wind) && (wind.speed == 0 || hasDirection(wind)); }

std::size_t firstLevelFrom(const std::vector<Level>& levels, double height) {
    const auto above = std::lower_bound(levels.begin(), levels.end(), height - sameHeight,
                                        [](const Level& level, double z) { return level.height < z; });
    return static_cast<std::size_t>(above - levels.begin());
}

Wind windAtHeight(const std::vector<Level>& levels, double height) {
    const std::size_t index = firstLevelFrom(levels, height);
    if (index == levels.size()) return {};
    const Level& above = levels[index];
    if (above.height <= height + sameHeight) return above.wind;
    if (index == 0) return {};
    const Level& below = levels[index - 1];
    if (!hasComponents(below.wind) || !hasComponents(above.wind)) return {};
    const double share = (height - below.height) / (above.height - below.height);
    const Components low = componentsOf(below.wind);
    const Components high = componentsOf(above.wind);
    return windOf({low.u + share * (high.u - low.u), low.v + share * (high.v - low.v)});
}

}  // namespace zg::tempoline
