#pragma once

// What the header of a raw file tells, in one form for every kind: for callers that do not show a dialog of
// the kind.

#include <cstdint>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "formats/Kinds.h"
#include "headers/HeaderSource.h"

namespace zg {

struct RawHeader {
    InputKind kind = InputKind::Surf;
    std::string timeZone;          ///< key in upper case, as "UTC-0500"; "" for data that do not name one
    DateTime begin;                ///< of the data, in their zone
    DateTime end;                  ///< of the last record
    std::int32_t stepSeconds = 0;  ///< length of a record; 0 for soundings, which have none
    std::vector<std::string>
        stations;  ///< each once, in the order of the file; empty for grids and for kinds that name none
};

/// Reads a file of that kind: its header, or all of it for the kinds MonitorW, AermSfc and AermPfl, whose
/// period ends with their last line. Raises a HeaderError, also for the kind Csv, for a file of another kind
/// or of a version that is not read.
RawHeader readRawHeader(HeaderSource& source, InputKind kind);

}  // namespace zg
