#pragma once

// What is known about a file of raw data from the file itself.

#include <string>
#include <vector>

#include "base/Dates.h"
#include "export/RawWishes.h"
#include "formats/Kinds.h"

namespace zg {

struct RawFacts {
    InputKind kind = InputKind::AermSfc;
    DateTime begin;  ///< by the clock of the zone, as is the next
    DateTime end;
    std::string zone;  ///< key; "" if the data do not name one
    int stepSeconds = 3600;
    std::vector<std::string> stations;  ///< available stations, in file order
    std::vector<std::string> heights;   ///< metres; empty for a series, whose height is its own
    TableFacts table;                   ///< of a table
    std::vector<std::string> told;      ///< lines: what was detected, to be reported
};

/// Reads the header, for some kinds the whole file. Throws a RawFault with file, line and field.
RawFacts rawFactsOf(const std::string& path, InputKind kind, const RawWishes& wishes);

}  // namespace zg
