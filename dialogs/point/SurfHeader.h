#pragma once

// The header of a SURF.DAT file, the hourly surface observations of one or more stations. Its records are for
// the processor.

#include <string>
#include <vector>

#include "base/Dates.h"
#include "base/Host.h"

namespace zg {

enum class SurfOutcome {
    Read,
    NotSurf,         ///< the first line is of no such file
    UnknownVersion,  ///< neither 2.0 nor 2.1
};

struct SurfHeader {
    SurfOutcome outcome = SurfOutcome::NotSurf;
    bool stationsReached = false;  ///< the list begins anew
    std::string timeZone;          ///< a key, as "UTC-0500"
    std::vector<std::string> stations;
    DateTime begin;  ///< version 2.0 stamps hours at their end: an hour earlier than written
    DateTime end;
};

/// Reads it. A Julian day out of its year shows its message first. Raises 13 for what is no number or no
/// date, 9 for a line with fields missing, 62 for a file that ends too early, 6 for a count beyond its width,
/// and the error of a file that cannot be read, with the number of the line. What was read before an error
/// stays in the header.
void readSurfHeader(Host& host, const std::string& path, SurfHeader& header);

}  // namespace zg
