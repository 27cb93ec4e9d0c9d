#pragma once

// One wind, and the plain rules of what counts as calm, valid and missing.

#include <cmath>
#include <limits>

namespace zg::tempoline {

constexpr double missingValue = std::numeric_limits<double>::quiet_NaN();
constexpr double highestSpeed = 90;

inline bool hasValue(double value) { return !std::isnan(value); }

/// Speed in m/s, direction in degrees from which the wind blows, clockwise from north; what is missing is
/// outside the ranges (not-a-number too).
struct Wind {
    double speed = missingValue;
    double direction = missingValue;
};

inline bool hasSpeed(const Wind& wind) { return wind.speed >= 0 && wind.speed <= highestSpeed; }
inline bool hasDirection(const Wind& wind) { return wind.direction >= 0 && wind.direction <= 360; }

inline bool isCalm(const Wind& wind, double calmLimit) { return hasSpeed(wind) && wind.speed < calmLimit; }

/// A calm counts whatever its direction.
inline bool isValid(const Wind& wind, double calmLimit) {
    return hasSpeed(wind) && (wind.speed < calmLimit || hasDirection(wind));
}

/// 0 to 15, north first, clockwise: floor((direction + 11.25) / 22.5) mod 16.
inline int sectorOf(double direction) { return static_cast<int>((direction + 11.25) / 22.5) % 16; }

/// Eastward and northward part of a wind, m/s.
struct Components {
    double u = 0;
    double v = 0;
};

/// Of a wind that has both; a speed of 0 needs no direction.
Components componentsOf(const Wind& wind);

/// The wind of these components. Computed speeds and directions are rounded to a millionth, so that the noise
/// of the arithmetic moves no value over a limit: 3.24 and 4.32 m/s are exactly 5.4 m/s.
Wind windOf(Components components);

/// The same wind by a north that lies so many degrees counterclockwise; rounded as windOf does. Without a
/// direction, and by 0 degrees, it stays untouched.
Wind turned(const Wind& wind, double degrees);

/// To the nearest millionth.
double roundedToMillionth(double value);

}  // namespace zg::tempoline
