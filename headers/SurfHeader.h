#pragma once

// The header of a SURF.DAT file, the hourly surface observations of one or more stations. Its records are
// left to the processor.

#include <string>
#include <vector>

#include "base/Dates.h"
#include "base/Host.h"

namespace zg {

enum class SurfOutcome {
    Read,
    NotSurf,         ///< the first line is not that of such a file
    UnknownVersion,  ///< neither 2.0 nor 2.1
};

struct SurfHeader {
    SurfOutcome outcome = SurfOutcome::NotSurf;
    bool stationsReached = false;  ///< the list starts again
    std::string timeZone;          ///< a key, such as "UTC-0500"
    std::vector<std::string> stations;
    DateTime begin;  ///< version 2.0 stamps hours with their end: an hour earlier than written
    DateTime end;
};

/// Reads it. A day that the year does not have first shows its message. Raises 13 for an invalid number or
/// date, 9 for a line with missing fields, 62 for a file that ends too early, 6 for a count out of range, and
/// the error of a file that cannot be read, with the line number. What was read before an error stays in the
/// header.
void readSurfHeader(Host& host, const std::string& path, SurfHeader& header);

}  // namespace zg
