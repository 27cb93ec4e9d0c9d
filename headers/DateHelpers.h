#pragma once

// Days of the year, seconds of the hour, and dates made from the texts of a header. MonthName3 and
// DateFromParts are in base/Dates.h.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/Dates.h"

namespace zg {

/// A month and its day, or nothing. Reading either part of an empty one raises 13.
class MonthAndDay {
 public:
    MonthAndDay() = default;
    MonthAndDay(std::int16_t month, std::int16_t day) : values_({month, day}) {}

    bool empty() const { return !values_.has_value(); }
    std::int16_t month() const { return value(0); }
    std::int16_t day() const { return value(1); }

 private:
    std::int16_t value(std::size_t i) const;

    std::optional<std::array<std::int16_t, 2>> values_;
};

/// What a dialog shows if the result of VBGRDAY is empty.
constexpr const char* invalidJulianDayText = "Error in VBGRDAY: invalid date.";

/// Month and day of a day of the year, counted from 1. Every fourth year is a leap year, including 1900.
/// Empty for a day that the year does not have.
MonthAndDay VBGRDAY(std::int16_t year, std::int16_t julianDay);

/// {minutes, seconds}; the argument keeps only the seconds.
std::array<std::int16_t, 2> MinSecOf(std::int16_t& seconds);

/// Whole hours in a number of seconds.
std::int16_t HoursOf(std::int16_t seconds);

/// Whole minutes beyond the whole hours. The argument loses its hours, so a caller that needs it again passes
/// a copy.
std::int16_t MinutesOf(std::int16_t& seconds);

/// Seconds beyond the whole hours and minutes.
std::int16_t SecondsOf(std::int16_t seconds);

/// The day of the date at the time of day "h:m:s"; raises 13 for an invalid time.
DateTime AddTimeToDate(DateTime date, std::string_view timeText);

}  // namespace zg
