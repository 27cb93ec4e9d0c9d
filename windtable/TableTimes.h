#pragma once

// Times in the forms found in tables.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "windtable/TableLayout.h"

namespace zg {

struct TableTime {
    std::int64_t seconds = 0;          ///< since January 1, 1970, by the clock of the text
    std::optional<std::int64_t> zone;  ///< seconds east of Greenwich, if the text states them
};

/// The time of these values: one, a date and a time of day, or the parts from the year on. None for what is
/// no time of that form. Two-digit years are 1930 to 2029; hour 24 is hour 0 of the next day; a date alone is
/// its first hour; parts of a second are dropped.
std::optional<TableTime> tableTime(TimeForm form, const std::string& pattern,
                                   std::span<const std::string_view> values);

/// Whether the pattern has a directive, and only known ones: %Y %y %m %b %d %j %H %I %M %S %p %z %s and %%.
bool isTimePattern(std::string_view text);

/// "UTC+0100"
std::string zoneWord(std::int64_t offset);

/// Seconds for such a word, or for "+01:00", "+0100", "+01" or "Z"; nothing for any other text and for more
/// than 14 hours.
std::optional<std::int64_t> zoneOfWord(std::string_view text);

/// Seconds of a valid date; years 1 to 9999.
std::optional<std::int64_t> dateSeconds(int year, int month, int day);

/// "2016-01-09 15:30"
std::string timeText(std::int64_t seconds);

}  // namespace zg
