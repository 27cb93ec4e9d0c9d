#pragma once

// The header of a time-series file that the processor wrote.

#include <cstdint>
#include <string>

#include "base/Dates.h"
#include "headers/HeaderSource.h"

namespace zg {

enum class TsfOutcome {
    Read,
    NotTsf,
    Refused,           ///< another version, or another kind of dates: no message
    NotMeteorological  ///< without wind direction or speed
};

struct TsfHeader {
    TsfOutcome outcome = TsfOutcome::NotTsf;
    std::string station;
    std::string timeZone;  ///< a key
    DateTime begin;
    DateTime end;
    std::int32_t stepSeconds = 0;
};

/// Raises a HeaderError: 62 for a file that ends too early, for example without a line for its zone, 9 for a
/// line with missing fields, 13 for an invalid number, date or time, 6 for a count out of range.
TsfHeader readTsfHeader(HeaderSource& source);

}  // namespace zg
