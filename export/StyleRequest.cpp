#include "export/StyleRequest.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr int usualRings = 5;
constexpr double leastPercent = 0.1;
constexpr double mostPercent = 100;

Palette paletteOf(const std::string& asked) {
    if (const auto named = paletteNamed(asked)) return *named;
    if (fileExists(asked)) return readPalette(asked);
    std::string names;
    for (const NamedPalette& palette : palettes()) names += std::string(palette.name) + ", ";
    throw WrongStyle{"--palette: " + asked + " is neither a file nor one of " +
                     names.substr(0, names.size() - 2)};
}

/// Percent at the outer ring.
double radiusOf(const std::string& asked) {
    double percent = 0;
    try {
        percent = toDouble(asked);
    } catch (const RunTimeError&) {
        throw WrongStyle{"--radius: " + asked + " is neither a number nor auto"};
    }
    if (!(percent >= leastPercent && percent <= mostPercent))
        throw WrongStyle{"--radius: " + asked + " is not within 0.1 to 100 percent"};
    return percent;
}

/// The columns or rows in "COLSxROWS", 0 if invalid.
int countOf(std::string_view text) {
    try {
        const std::int32_t count = toInt32(text);
        return count >= 1 && count <= mostPanelSide && std::to_string(count) == text ? count : 0;
    } catch (const RunTimeError&) {
        return 0;
    }
}

}  // namespace

RingScale ringsTo(double percent, int rings) {
    if (rings > 0) return {static_cast<float>(rings), percent / rings};
    constexpr double fewest = 3;
    for (const double step : {20.0, 10.0, 5.0, 2.0, 1.0, 0.5, 0.2, 0.1, 0.05})
        if (percent / step >= fewest) return {static_cast<float>(percent / step), step};
    return {static_cast<float>(percent / 0.02), 0.02};
}

RingScale ringsAround(double longestPercent, int rings) {
    const int count = rings > 0 ? rings : usualRings;
    for (const double step : {0.1, 0.2, 0.5, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 8.0, 10.0, 15.0, 20.0, 25.0, 50.0})
        if (step * count >= longestPercent) return {static_cast<float>(count), step};
    return {static_cast<float>(count), mostPercent};
}

double longestBar(const ModPolarGraph& tables, int rose) {
    double longest = 0;
    for (std::int64_t direction = 1; direction <= freqDirections; ++direction) {
        double share = 0;
        for (std::int64_t c = 1; c <= speedClasses; ++c)
            share += tables.FrqFraction(fractionRow(rose, direction), c);
        longest = std::max(longest, share * 100);
    }
    // A sum of decimals may be slightly above the step that should hold it.
    return roundHalfEven(longest, 6);
}

PictureLook lookOf(const StyleRequest& request) {
    PictureLook look;
    if (request.palette != "factory") look.palette = paletteOf(request.palette);
    look.rose = request.rose;
    look.rings = request.rings;
    look.scalesItself = request.scalesItself();
    if (request.sameScale && !request.radius.empty() && request.radius != "auto")
        throw WrongStyle{"--same-scale: a radius of " + request.radius +
                         " percent is the same for all pictures as it is"};
    if (request.besideTable && !request.panel.empty())
        throw WrongStyle{"--beside-table: a page of several roses (--panel) has no room for tables"};
    const bool isUsual = request.radius.empty() && request.rings == 0;
    if (!look.scalesItself && !isUsual)
        look.scale = ringsTo(request.radius.empty() ? usualRings * percentPerUnit : radiusOf(request.radius),
                             request.rings);
    look.rose.percentPerRing = look.scale.percentPerRing;
    look.besideTable = request.besideTable;
    return look;
}

PictureLook lookFor(const PictureLook& look, const ModPolarGraph& tables, int rose) {
    if (!look.scalesItself) return look;
    PictureLook own = look;
    own.scale = ringsAround(longestBar(tables, rose), look.rings);
    own.rose.percentPerRing = own.scale.percentPerRing;
    return own;
}

int usualPanelWidth(const PanelShape& shape) {
    constexpr int column = 300;
    constexpr int least = 600;
    return std::max(least, column * shape.columns);
}

PanelShape panelShape(const std::string& asked, int roses) {
    if (asked == "auto") {
        const int columns = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(std::max(1, roses)))));
        const int side = std::min(columns, mostPanelSide);
        return {side, std::clamp((roses + side - 1) / side, 1, mostPanelSide)};
    }
    const std::size_t middle = asked.find('x');
    if (middle != std::string::npos) {
        const PanelShape shape{countOf(std::string_view(asked).substr(0, middle)),
                               countOf(std::string_view(asked).substr(middle + 1))};
        if (shape.columns > 0 && shape.rows > 0) return shape;
    }
    throw WrongStyle{"--panel: " + asked + " is neither auto nor columns x rows, as 3x2, of 1 to 20 each"};
}

}  // namespace zg
