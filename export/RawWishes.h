#pragma once

// What is requested for raw data in addition to their headers.

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "windtable/TableGuess.h"

namespace zg {

struct RawWishes {
    std::vector<std::string> stations;  ///< empty for all
    std::vector<std::string> heights;   ///< metres; empty for those of the header
    std::string begin;                  ///< ISO 8601; "" for that of the data, as is the next
    std::string end;
    std::string step;     ///< seconds, or with "min" or "h"
    std::string zone;     ///< "UTC-0500", "-05:00", "Z"
    std::string classes;  ///< six speeds with commas, m/s
    std::string seasons;  ///< a file, or the names of the months' seasons, separated by commas
    std::string title;
    std::vector<std::string> locations;  ///< "LAT,LON", or files of such lines
    std::vector<std::string> cells;      ///< "I,J", or files of such lines
    TableWishes table;
    bool isTable = false;  ///< some option is for a table's layout: no other kind is considered

    bool keeps = false;      ///< all files of the run remain in the directory for the output
    bool keepsFrq = false;   ///< the FRQ files do
    bool onlyPlans = false;  ///< writes the control file and runs nothing
};

/// A request that cannot be met (exit status 2), or invalid data (1), in one line.
class RawFault : public std::runtime_error {
 public:
    RawFault(const std::string& text, bool wrongWish) : std::runtime_error(text), isWrongWish(wrongWish) {}

    bool isWrongWish;
};

}  // namespace zg
