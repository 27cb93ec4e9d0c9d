#pragma once

// Names of the files that a run makes.

#include <string>

namespace zg {

/// The period in a name: years unchanged, months and days in two digits, as in "20050307-20051231".
std::string periodInName(const std::string& beginYear, const std::string& beginMonth,
                         const std::string& beginDay, const std::string& endYear, const std::string& endMonth,
                         const std::string& endDay);

/// The file's name without its directory and its last four characters; raises 5 for a shorter name.
std::string fileBaseOf(const std::string& path);

/// Name of a station's output in a SURF.DAT run: the station's name or, if it has none, the input's name and
/// the text of its row in the list.
std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height);

}  // namespace zg
