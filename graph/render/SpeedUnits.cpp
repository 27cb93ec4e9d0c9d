#include "graph/render/SpeedUnits.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

struct UnitRow {
    const char* word;
    double perMetrePerSecond;
};

/// A knot is 1852 metres per hour, a mile 1609.344 metres.
UnitRow rowOf(SpeedUnit unit) {
    constexpr double secondsPerHour = 3600;
    switch (unit) {
        case SpeedUnit::Knots:
            return {"knots", secondsPerHour / 1852};
        case SpeedUnit::KilometresPerHour:
            return {"km/h", secondsPerHour / 1000};
        case SpeedUnit::MilesPerHour:
            return {"mph", secondsPerHour / 1609.344};
        default:
            return {"m/s", 1};
    }
}

}  // namespace

SpeedLimits speedLimits(const ModPolarGraph& tables, SpeedUnit unit) {
    const UnitRow row = rowOf(unit);
    SpeedLimits found;
    found.unit = row.word;
    found.perMetrePerSecond = row.perMetrePerSecond;
    for (std::size_t i = 0; i < found.limits.size(); ++i) {
        const std::string& text = tables.FrqClassLimit(static_cast<std::int64_t>(i));
        found.limits[i] = row.perMetrePerSecond == 1
                              ? trim(text)
                              : doubleText(roundHalfEven(toDouble(text) * row.perMetrePerSecond, 2));
    }
    return found;
}

std::string classWords(const SpeedLimits& limits, int speedClass) {
    const auto lower = static_cast<std::size_t>(speedClass);
    if (speedClass == speedClasses) return limits.limits[lower] + "+ " + limits.unit;
    return limits.limits[lower] + " to " + limits.limits[lower + 1] + " " + limits.unit;
}

}  // namespace zg
