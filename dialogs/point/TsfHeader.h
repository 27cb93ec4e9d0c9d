#pragma once

// The header of a time-series file that the processor wrote.

#include <cstdint>
#include <string>

#include "base/Dates.h"

namespace zg {

enum class TsfOutcome {
    Read,
    NotTsf,
    Refused,           ///< another version, or dates of another kind: nothing is said
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

/// Raises 62 for a file that ends too early, as one without a line of its zone does, 9 for a line with fields
/// missing, 13 for what is no number, date or time, 6 for a count beyond its width, each with its line.
TsfHeader readTsfHeader(const std::string& path);

}  // namespace zg
