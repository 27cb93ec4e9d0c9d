#pragma once

// Classes, seasons, times and places from the options.

#include <array>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "export/RawWishes.h"

namespace zg {

/// "0.5,1.8,3.3,5.4,8.5,10.8"; "" gives the usual ones.
std::string classesOf(const std::string& wish);

/// Names of the seasons in the order of the months, and the number of each month's season.
struct RawSeasons {
    std::vector<std::string> names;
    std::string months;  ///< "1,1,2,2,2,3,3,3,4,4,4,1"
};
RawSeasons seasonsOf(const std::string& wish);

/// "600", "600s", "10min", "1h" in seconds.
int stepOf(const std::string& wish);

/// The key of a zone: "UTC-0500", "-05:00", "Z".
std::string zoneKeyOf(const std::string& wish);

/// A moment in ISO 8601, by the clock of the zone.
DateTime momentOfWish(const std::string& option, const std::string& wish, const std::string& zone);

/// "a,b" as two numbers, exactly as written; files of such lines are read.
std::vector<std::array<std::string, 2>> pairsOf(const std::string& option,
                                                const std::vector<std::string>& wishes);

/// A number of at least 0, exactly as written.
std::string heightOfWish(const std::string& wish);

}  // namespace zg
