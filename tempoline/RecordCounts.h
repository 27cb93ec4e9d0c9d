#pragma once

// What happened to the records of one output, and to the steps of its period.

#include <cstddef>
#include <cstdint>
#include <string>

#include "tempoline/CommonValue.h"
#include "tempoline/Times.h"

namespace zg::tempoline {

/// Why a reader gives a missing wind: its values are marked as missing, or the data have no level at or
/// around the requested height.
enum class MissingReason { Values, NoLevel };

/// A record, as messages need it.
struct RecordMark {
    Seconds begin = 0;  ///< in the zone of the run
    Seconds end = 0;
    std::string path;
    std::size_t line = 0;
};

/// read = used + missing + outside + duplicate; calm are among the used.
struct RecordCounts {
    std::int64_t read = 0;
    std::int64_t used = 0;
    std::int64_t missing = 0;
    std::int64_t calm = 0;
    std::int64_t outside = 0;    ///< of the period
    std::int64_t duplicate = 0;  ///< same begin as the record before: only the first counts
    std::string firstDuplicate;  ///< "file:line"

    std::int64_t early = 0;  ///< of those outside: how many are before the period

    // of those missing
    std::int64_t noLevel = 0;
    std::int64_t noSpeed = 0;
    std::int64_t wrongSpeed = 0;  ///< below 0 or above 90 m/s
    std::int64_t noDirection = 0;
    std::int64_t wrongDirection = 0;  ///< outside 0 to 360

    RecordMark firstUsed;  ///< if any was used
    RecordMark lastUsed;

    CommonValue spacing;          ///< seconds from begin to begin
    CommonValue length;           ///< seconds from begin to end
    std::int64_t misaligned = 0;  ///< as long as the step, but not aligned with it
    Seconds misalignment = 0;     ///< of the first such record, seconds after the start of its step
};

/// total = valid + noRecord + noWind + tooShort + noDirection
struct StepCounts {
    std::int64_t total = 0;
    std::int64_t valid = 0;
    std::int64_t noRecord = 0;     ///< no record overlaps the step
    std::int64_t noWind = 0;       ///< no record of the step has a wind
    std::int64_t tooShort = 0;     ///< valid records cover less than half of the step
    std::int64_t noDirection = 0;  ///< the mean vector is too short to have one
};

}  // namespace zg::tempoline
