#pragma once

// The table of time zones: what the user picks and what the processor reads.

#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// Row i of both tables belongs together, in the order of the file. Several rows share a key.
struct TimeZoneTable {
    std::vector<std::string> gsTimeZoneKeys;    ///< "UTC+0300"
    std::vector<std::string> gsTimeZoneLabels;  ///< "(UTC+03:00) Nairobi"
};

extern TimeZoneTable timeZones;

/// Fills the table from TimeZones.txt in the program's directory when it is still empty. Raises 53 where the
/// file is missing, 62 where it has no heading, 9 for a row without a tab; nothing is kept of a file that
/// fails, so that the next call tries again.
void LoadTimeZones();

/// Hours west of UTC: "UTC+0300" is -3. A key that ends in "30" gets half an hour added on either side, as
/// the shifts between zones are reckoned: "UTC-0330" is 3.5 and "UTC+0330" is -2.5. Raises 13 where
/// characters 4 to 6 are no number.
float HoursFromTimeZone(std::string_view key);

/// The key of so many hours west of UTC, fractions rounded away: 5 gives "UTC-0500".
std::string TimeZoneFromHours(double hours);

}  // namespace zg
