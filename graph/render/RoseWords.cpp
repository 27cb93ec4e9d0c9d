#include "graph/render/RoseWords.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "base/Encoding.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr std::size_t directionsNamed = 3;

/// The directions of the displayed rose, the most frequent first; equal ones clockwise from north.
std::vector<int> byFrequency(const ModPolarGraph& tables) {
    std::vector<int> directions(freqDirections);
    std::iota(directions.begin(), directions.end(), 1);
    std::stable_sort(directions.begin(), directions.end(),
                     [&](int a, int b) { return shareOf(tables, a) > shareOf(tables, b); });
    return directions;
}

std::string hoursText(double hours) {
    if (hours < 0) return {};
    return ", " + doubleText(hours) + (hours == 1 ? " hour" : " hours");
}

}  // namespace

double shareOf(const ModPolarGraph& tables, int direction, int speedClass) {
    return tables.FrqFraction(fractionRow(tables.CurrentRose, direction), speedClass);
}

double shareOf(const ModPolarGraph& tables, int direction) {
    double share = 0;
    for (int c = 1; c <= speedClasses; ++c) share += shareOf(tables, direction, c);
    return share;
}

double hoursOf(const ModPolarGraph& tables, double share) {
    if (tables.FrqValidPeriods.size() == 0) return -1;
    return roundHalfEven(share * tables.FrqValidPeriods(tables.CurrentRose));
}

std::string percentText(double share, int decimals) {
    return doubleText(roundHalfEven(share * 100, decimals));
}

std::string fixedText(double value, int decimals) {
    const double power = std::pow(10, decimals);
    const auto whole = std::llround(std::fabs(value) * power);
    std::string digits = std::to_string(whole);
    const auto places = static_cast<std::size_t>(decimals);
    if (digits.size() <= places) digits.insert(0, places + 1 - digits.size(), '0');
    if (places > 0) digits.insert(digits.size() - places, 1, '.');
    return (value < 0 && whole > 0 ? "-" : "") + digits;
}

std::string barWords(const ModPolarGraph& tables, const SpeedLimits& limits, int direction, int speedClass) {
    const double share = shareOf(tables, direction, speedClass);
    const std::string words = toUtf8(tables.FrqDirectionLabel(direction)) + ", " +
                              toUtf8(classWords(limits, speedClass)) + ": " + percentText(share) + " %";
    return words + hoursText(hoursOf(tables, share));
}

double calmShare(const ModPolarGraph& tables) {
    return std::clamp(val(tables.FrqCalmPercent(tables.CurrentRose)) / 100, 0.0, 1.0);
}

std::string calmWords(const ModPolarGraph& tables) {
    const double share = calmShare(tables);
    return "Calm: " + percentText(share) + " %" + hoursText(hoursOf(tables, share));
}

std::string roseWords(const ModPolarGraph& tables, const SpeedLimits& limits) {
    std::string words = "Wind rose of 16 directions, from which the wind blows, and 6 speed classes.";
    if (tables.FrqRoseCount == 0) return words;
    words += " Calm, below " +
             toUtf8(limits.limits[0] + " " + limits.unit + ": " +
                    trim(tables.FrqCalmPercent(tables.CurrentRose))) +
             " %.";
    std::string most;
    const std::vector<int> directions = byFrequency(tables);
    for (std::size_t i = 0; i < directionsNamed; ++i)
        if (const double share = shareOf(tables, directions[i]); share > 0)
            most += (most.empty() ? "" : ", ") + toUtf8(tables.FrqDirectionLabel(directions[i])) + " " +
                    percentText(share) + " %";
    if (!most.empty()) words += " Most frequent: " + most + ".";
    std::string classes;
    for (int c = 1; c <= speedClasses; ++c) {
        double share = 0;
        for (int direction = 1; direction <= freqDirections; ++direction)
            share += shareOf(tables, direction, c);
        classes += (c == 1 ? "" : ", ") + toUtf8(classWords(limits, c)) + " " + percentText(share) + " %";
    }
    return words + " By speed: " + classes + ".";
}

}  // namespace zg
