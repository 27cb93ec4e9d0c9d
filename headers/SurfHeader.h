#pragma once

// The header of a SURF.DAT file, the hourly surface observations of one or more stations. Its records are
// left to the processor.

#include <string>
#include <vector>

#include "base/Dates.h"
#include "headers/HeaderSource.h"

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

/// Raises a HeaderError: 13 for an invalid number or date (with a notice for a day that the year does not
/// have), 9 for a line with missing fields, 62 for a file that ends too early, 6 for a count out of range.
/// What was read before the error stays in the header.
void readSurfHeader(HeaderSource& source, SurfHeader& header);

}  // namespace zg
