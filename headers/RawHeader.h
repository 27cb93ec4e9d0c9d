#pragma once

// The contents of a raw file's header in one form for every kind, for callers without a dialog.

#include <cstdint>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "formats/Kinds.h"
#include "headers/HeaderSource.h"

namespace zg {

struct RawHeader {
    InputKind kind = InputKind::Surf;
    std::string timeZone;          ///< key in upper case, such as "UTC-0500"; "" if the data do not name one
    DateTime begin;                ///< of the data, in their zone
    DateTime end;                  ///< of the last record
    std::int32_t stepSeconds = 0;  ///< length of a record; 0 for soundings, which have none
    std::vector<std::string>
        stations;  ///< without duplicates, in file order; empty for grids and for kinds without names
};

/// Reads a file of that kind: its header, or all of it for the kinds MonitorW, AermSfc and AermPfl, whose
/// period ends with their last line. Raises a HeaderError, also for the kind Csv, for a file of another kind
/// or of an unsupported version.
RawHeader readRawHeader(HeaderSource& source, InputKind kind);

}  // namespace zg
