#include "graph/frq/ClassLimits.h"

#include "base/Numbers.h"

namespace zg {

namespace {

constexpr double knotsInMetrePerSecond = 1.94384617178935;
constexpr std::size_t lastLimit = 6;

}  // namespace

void buildKnotTable(ModPolarGraph& tables) {
    const std::size_t count = tables.FrqClassLimit.size();
    if (count == 0) raise(ErrorNumber::SubscriptOutOfRange);
    tables.KnotClassLimit.redim(count - 1);
    const std::string calm = doubleText(toDouble(tables.FrqClassLimit(0)) * knotsInMetrePerSecond);
    tables.KnotClassLimit(0) = formatScientific(toDouble(calm));
    for (std::size_t i = 1; i < count; ++i) {
        const auto index = static_cast<std::int64_t>(i);
        const double knots = toDouble(tables.FrqClassLimit(index)) * knotsInMetrePerSecond;
        tables.KnotClassLimit(index) = doubleText(roundHalfEven(knots, 2));
    }
    tables.KnotTableReady = true;
}

std::string rebuildLegendLimits(ModPolarGraph& tables) {
    tables.LegendClassLimit.redim(lastLimit);
    std::string unit;
    if (tables.ClassesFromFile) {
        tables.LegendClassLimit = tables.FrqClassLimit;
        unit = "m/s";
    }
    if (tables.ClassesInKnots) {
        // The unit may have been set when the settings were loaded after the file, and not by a choice for
        // this file.
        if (!tables.KnotTableReady) buildKnotTable(tables);
        tables.LegendClassLimit = tables.KnotClassLimit;
        unit = "knots";
    }
    return unit;
}

}  // namespace zg
