#pragma once

// The contents of a comma-separated monitor file: its stations and its period, which only its last line
// gives.

#include <functional>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "headers/HeaderSource.h"

namespace zg {

struct MonitorHeader {
    bool isMonitor = false;  ///< the columns of date and station exist
    std::int16_t averagingMinutes = 0;
    std::vector<std::string> stations;  ///< in the order in which they alternate in the file
    DateTime begin;                     ///< averaging time of the first record
    DateTime end;
};

/// Reads the whole file; onProgress is called at intervals, onStation with each station when it begins, even
/// if an error further on ends the reading. Raises a HeaderError: 13 for an invalid number, date or time, 9
/// for a missing field, 62 without a record.
MonitorHeader readMonitorHeader(HeaderSource& source, const std::function<void()>& onProgress = {},
                                const std::function<void(const std::string&)>& onStation = {});

}  // namespace zg
