#pragma once

// The table of time zones: the labels that the user selects and the keys that the processor reads.

#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// Row i of both tables belongs together, in file order. Several rows share a key.
struct TimeZoneTable {
    std::vector<std::string> gsTimeZoneKeys;    ///< "UTC+0300"
    std::vector<std::string> gsTimeZoneLabels;  ///< "(UTC+03:00) Nairobi"
};

extern TimeZoneTable timeZones;

/// Fills the table from TimeZones.txt in the program's directory if it is still empty. Raises 53 if the file
/// is missing, 62 if it has no heading, 9 for a row without a tab; nothing of an invalid file is kept, so
/// that the next call tries again.
void LoadTimeZones();

/// Hours west of UTC: "UTC+0300" is -3. A key that ends in "30" gets half an hour added on either side, since
/// shifts between zones are calculated so: "UTC-0330" is 3.5 and "UTC+0330" is -2.5. Raises 13 if characters
/// 4 to 6 are not a number.
float HoursFromTimeZone(std::string_view key);

/// The key for this many hours west of UTC, fractions rounded away: 5 gives "UTC-0500".
std::string TimeZoneFromHours(double hours);

}  // namespace zg
