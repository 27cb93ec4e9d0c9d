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

}  // namespace zg
