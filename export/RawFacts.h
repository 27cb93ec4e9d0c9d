#pragma once

// What is known of a file of raw data before it is asked for anything.

#include <string>
#include <vector>

#include "base/Dates.h"
#include "export/RawWishes.h"
#include "formats/Kinds.h"

namespace zg {

struct RawFacts {
    InputKind kind = InputKind::AermSfc;
    DateTime begin;  ///< by the clock of the zone, as the next
    DateTime end;
    std::string zone;  ///< key; "" where the data name none
    int stepSeconds = 3600;
    std::vector<std::string> stations;  ///< those that can be asked for, in the order of the file
    std::vector<std::string> heights;   ///< metres; empty for a series, whose height is its own
    TableFacts table;                   ///< of a table
    std::string told;                   ///< what was found out, to be told
};

/// Reads the header, of some kinds the whole file. Throws a RawFault with file, line and field.
RawFacts rawFactsOf(const std::string& path, InputKind kind, const RawWishes& wishes);

}  // namespace zg
