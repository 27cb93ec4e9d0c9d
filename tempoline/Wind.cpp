#include "tempoline/Wind.h"

#include <numbers>

namespace zg::tempoline {

namespace {

constexpr double degree = std::numbers::pi / 180;

}  // namespace

double roundedToMillionth(double value) { return std::nearbyint(value * 1e6) / 1e6; }

Components componentsOf(const Wind& wind) {
    if (wind.speed == 0) return {};
    return {-wind.speed * std::sin(wind.direction * degree), -wind.speed * std::cos(wind.direction * degree)};
}

Wind windOf(Components components) {
    const double speed = roundedToMillionth(std::hypot(components.u, components.v));
    if (!(speed > 0)) return {speed, missingValue};
    double direction = roundedToMillionth(std::atan2(-components.u, -components.v) / degree);
    direction = direction < 0 ? direction + 360 : std::abs(direction);  // no negative zero
    return {speed, direction};
}

Wind turned(const Wind& wind, double degrees) {
    if (degrees == 0 || !hasDirection(wind)) return wind;
    const double direction = roundedToMillionth(std::fmod(wind.direction + degrees, 360));
    return {wind.speed, direction < 0 ? direction + 360 : std::abs(direction)};
}

}  // namespace zg::tempoline
