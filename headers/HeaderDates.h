#pragma once

// What the header readers for point data share.

#include <cstdint>
#include <string>

#include "base/Dates.h"
#include "base/Host.h"
#include "base/Lines.h"
#include "base/RunTimeError.h"

namespace zg {

/// A moment by year and day of the year, as in a header.
struct JulianStamp {
    std::int16_t year = 0;
    std::int16_t julianDay = 0;
    std::int16_t hour = 0;     ///< 24 is midnight of the next day
    std::int16_t seconds = 0;  ///< within the hour
};

/// The stamp's day; hour 24 becomes hour 0 of the next one. A day that the year does not have shows its
/// message; raises 13 for an invalid date.
DateTime dayOf(Host& host, JulianStamp& stamp);

/// Day and time of the stamp, in the same way; raises 13 for an invalid date or time.
DateTime momentOf(Host& host, JulianStamp stamp);

/// "h:m:s" from an hour's text and the seconds within the hour.
std::string timeTextOf(const std::string& hour, std::int16_t seconds);

/// Skips the number of comments, the comments, and the one line that always follows them.
void skipComments(LineReader& lines);

/// Reads by calling the function; adds the line number to an error.
template <typename Read>
auto withLineNumbers(LineReader& lines, Read read) {
    try {
        return read();
    } catch (RunTimeError& error) {
        if (error.where.empty()) error.where = std::to_string(lines.lineNumber());
        throw;
    }
}

}  // namespace zg
