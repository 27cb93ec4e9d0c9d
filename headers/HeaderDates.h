#pragma once

// What the header readers for point data share.

#include <cstdint>
#include <string>

#include "base/Dates.h"
#include "headers/HeaderSource.h"

namespace zg {

/// A moment by year and day of the year, as in a header.
struct JulianStamp {
    std::int16_t year = 0;
    std::int16_t julianDay = 0;
    std::int16_t hour = 0;     ///< 24 is midnight of the next day
    std::int16_t seconds = 0;  ///< within the hour
};

/// The next fields of a line: year, day of the year, hour and, if the version has them, seconds.
JulianStamp readStamp(HeaderFields& fields, bool withSeconds);

/// The stamp's day; hour 24 becomes hour 0 of the next one. Raises 13 for an invalid date, with that field;
/// for a day that the year does not have the error has a notice.
DateTime dayOf(HeaderSource& source, JulianStamp& stamp, const char* field);

/// Day and time of the stamp, in the same way; raises 13 for an invalid date or time.
DateTime momentOf(HeaderSource& source, JulianStamp stamp, const char* field);

/// "h:m:s" from an hour's text and the seconds within the hour.
std::string timeTextOf(const std::string& hour, std::int16_t seconds);

/// Skips the number of comments, the comments, and the one line that always follows them.
void skipComments(HeaderSource& source);

}  // namespace zg
