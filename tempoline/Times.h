#pragma once

// Moments as whole seconds of the proleptic Gregorian calendar, without a time zone: each reader converts its
// times to the zone of the run.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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

bool isLeapYear(int year);

/// 28 to 31; the month must be valid.
int daysOfMonth(int year, int month);

Calendar calendarOf(Seconds moment);

/// Why a date or an hour is invalid, in a form for "field: ...", or "" if it is valid. Years 1 to 9999, hour
/// 0 to 24, second 0 to 3600 within the hour.
std::string faultOfDate(int year, int month, int day);
std::string faultOfHour(int hour, int second);

/// The moment; the parts must be valid. Hour 24 is hour 0 of the next day.
Seconds momentOf(int year, int month, int day, int hour, int second);

/// Like momentOf, from the day of the year, 1 to 366.
Seconds momentOfJulianDay(int year, int julianDay, int hour, int second);

/// Two-digit years 50 to 99 are 19xx, 0 to 49 are 20xx; others are unchanged.
int fullYear(int year);

/// Seconds east of Greenwich for a key such as "UTC-0330", letters in any case; nothing for any other text.
std::optional<Seconds> zoneOffset(std::string_view key);

/// The key of a zone: "UTC-0330".
std::string zoneText(Seconds offset);

/// "1988 1 1 0 0": year, month, day, hour, second within the hour.
std::string periodText(Seconds moment);

/// "1988-01-01 00:00:00"
std::string isoText(Seconds moment);

}  // namespace zg::tempoline
