#pragma once

// Dates and times of day, independent of any locale: whole seconds, English month names.

#include <cstdint>
#include <string>
#include <string_view>

namespace zg {

/// A moment as whole seconds since 00:00 on December 30, 1899; 0 means "not known". Years run from 100 to
/// 9999.
struct DateTime {
    std::int64_t seconds = 0;
    auto operator<=>(const DateTime&) const = default;
};

struct CalendarDate {
    int year = 0;
    int month = 0;  ///< 1 to 12
    int day = 0;    ///< 1 to 31
};

struct TimeOfDay {
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59
    int second = 0;  ///< 0 to 59
};

/// Raises 13 for a date that does not exist or a year outside 100 to 9999.
DateTime makeDate(int year, int month, int day);
CalendarDate dateOf(DateTime moment);
TimeOfDay timeOf(DateTime moment);

/// "Jan" to "Dec" for the number in the text, "" for anything outside 1 to 12.
std::string MonthName3(std::string_view monthText);

/// A year of one or two digits in full: 0 to 29 are 20xx, 30 to 99 are 19xx; others are unchanged.
int fullYear(int year);

/// "Mar 5 ,1990": month name, day, and year as fullYear takes it. Raises 13 for text that is not a
/// date.
DateTime parseDate(std::string_view text);

/// The date given by year, month and day as texts; raises 13 if they do not form one.
DateTime DateFromParts(std::string_view year, std::string_view month, std::string_view day);

/// "h:m:s" with parts of one or two digits in their usual ranges; raises 13 for anything else.
TimeOfDay parseTime(std::string_view text);

/// Seconds of hours, minutes and seconds, each of which may exceed its range: timeSerial(0, 0, 3600) is one
/// hour. Raises 6 for a part outside 32 bits.
std::int64_t timeSerial(std::int64_t hours, std::int64_t minutes, std::int64_t seconds);

/// The moment shifted by an amount, which may be negative; raises 6 outside the years 100 to 9999.
DateTime addDays(DateTime moment, std::int64_t days);
DateTime addSeconds(DateTime moment, std::int64_t seconds);

/// Adds hours, fractions included (half-hour zones), rounded to the nearest second; raises 6 outside the
/// years 100 to 9999.
DateTime addHours(DateTime moment, double hours);

/// "Jan 1, 2001"
std::string formatDate(DateTime moment);

/// "1:00:00 AM"; midnight is "12:00:00 AM".
std::string longTime(TimeOfDay time);

}  // namespace zg
