#pragma once

// Moments as whole seconds of the proleptic Gregorian calendar, without a time zone: each reader converts its
// times to the zone of the run. The rules for years, hours and zones are those of formats/.

#include <cstdint>
#include <string>

#include "formats/Times.h"
#include "formats/ZoneKeys.h"

namespace zg::tempoline {

/// Seconds since 00:00 on January 1, 1970, in the zone in use.
using Seconds = std::int64_t;

constexpr Seconds secondsAnHour = 3600;
constexpr Seconds secondsADay = 86400;

struct Calendar {
    int year = 1970;
    int month = 1;   ///< 1 to 12
    int day = 1;     ///< 1 to 31
    int hour = 0;    ///< 0 to 23
    int second = 0;  ///< within the hour, 0 to 3599
};

/// Days since January 1, 1970. Valid for every year from 1 to 9999.
std::int64_t daysFromDate(int year, int month, int day);

Calendar calendarOf(Seconds moment);

/// The moment; the parts must be valid. Hour 24 is hour 0 of the next day.
Seconds momentOf(int year, int month, int day, int hour, int second);

/// Like momentOf, from the day of the year, 1 to 366.
Seconds momentOfJulianDay(int year, int julianDay, int hour, int second);

/// "1988 1 1 0 0": year, month, day, hour, second within the hour.
std::string periodText(Seconds moment);

/// "1988-01-01 00:00:00"
std::string isoText(Seconds moment);

}  // namespace zg::tempoline
