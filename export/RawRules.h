#pragma once

// Classes, seasons, times and places as the options give them.

#include <array>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "export/RawWishes.h"

namespace zg {

/// "0.5,1.8,3.3,5.4,8.5,10.8": the usual ones for "".
std::string classesOf(const std::string& wish);

/// Names of the seasons in the order of the months, and the number of each month's.
struct RawSeasons {
    std::vector<std::string> names;
    std::string months;  ///< "1,1,2,2,2,3,3,3,4,4,4,1"
};
RawSeasons seasonsOf(const std::string& wish);

/// "600", "600s", "10min", "1h" as seconds.
int stepOf(const std::string& wish);

/// A key of a zone: "UTC-0500", "-05:00", "Z".
std::string zoneKeyOf(const std::string& wish);

/// A moment of ISO 8601 by the clock of the zone.
DateTime momentOfWish(const std::string& option, const std::string& wish, const std::string& zone);

/// "a,b" as two numbers in the words they were written; files of such lines are read.
std::vector<std::array<std::string, 2>> pairsOf(const std::string& option,
                                                const std::vector<std::string>& wishes);

/// A number above or equal 0 in its own words.
std::string heightOfWish(const std::string& wish);

}  // namespace zg
