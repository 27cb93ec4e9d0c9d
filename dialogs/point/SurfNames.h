#pragma once

// Names of the files that a SURF.DAT run makes.

#include <string>
#include <vector>

namespace zg {

/// The period in a name: years as they are, months and days in two digits, as "20050307-20051231".
std::string periodInName(const std::string& beginYear, const std::string& beginMonth,
                         const std::string& beginDay, const std::string& endYear, const std::string& endMonth,
                         const std::string& endDay);

/// The file's name without its directory and its last four characters; raises 5 for a shorter name.
std::string fileBaseOf(const std::string& path);

/// The name of the station of that code by the table of stations, "" for one that it does not have.
std::string stationNameOf(const std::string& code);

/// Name of a station's output.
std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height);

}  // namespace zg
