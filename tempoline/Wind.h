#pragma once

// One wind, and the rules for calm, valid and missing.

#include <cmath>
#include <limits>

namespace zg::tempoline {

constexpr double missingValue = std::numeric_limits<double>::quiet_NaN();
constexpr double highestSpeed = 90;

inline bool hasValue(double value) { return !std::isnan(value); }

/// Speed in m/s and the direction in degrees that the wind blows from, clockwise from north; missing values
/// are outside the valid ranges or not-a-number.
struct Wind {
    double speed = missingValue;
    double direction = missingValue;
};

inline bool hasSpeed(const Wind& wind) { return wind.speed >= 0 && wind.speed <= highestSpeed; }
inline bool hasDirection(const Wind& wind) { return wind.direction >= 0 && wind.direction <= 360; }

inline bool isCalm(const Wind& wind, double calmLimit) { return hasSpeed(wind) && wind.speed < calmLimit; }

/// A calm is valid whatever its direction.
inline bool isValid(const Wind& wind, double calmLimit) {
    return hasSpeed(wind) && (wind.speed < calmLimit || hasDirection(wind));
}

/// 0 to 15, clockwise from north: floor((direction + 11.25) / 22.5) mod 16.
inline int sectorOf(double direction) { return static_cast<int>((direction + 11.25) / 22.5) % 16; }

/// Eastward and northward components of a wind, m/s.
struct Components {
    double u = 0;
    double v = 0;
};

/// Of a wind with speed and direction; a speed of 0 needs no direction.
Components componentsOf(const Wind& wind);

/// The wind with these components. Computed speeds and directions are rounded to a millionth, so that
/// rounding errors do not move a value across a limit: 3.24 and 4.32 m/s give exactly 5.4 m/s.
Wind windOf(Components components);

/// The same wind relative to a north that is that many degrees counterclockwise; rounded like windOf.
/// Unchanged without a direction, and for 0 degrees.
Wind turned(const Wind& wind, double degrees);

/// Rounded to the nearest millionth.
double roundedToMillionth(double value);

}  // namespace zg::tempoline
