#pragma once

// What a comma-separated monitor file holds: its stations and its period, which only its last line tells.

#include <functional>
#include <string>
#include <vector>

#include "base/Dates.h"

namespace zg {

struct MonitorHeader {
    bool isMonitor = false;  ///< the columns of date and station are there
    std::int16_t averagingMinutes = 0;
    std::vector<std::string> stations;  ///< as they take turns in the file
    DateTime begin;                     ///< of the first record's averaging time
    DateTime end;
};

/// Reads the whole file; onProgress is called now and then, onStation with each station as it takes its turn,
/// also where a fault further on ends the reading. Raises 13 for what is no number, date or time, 9 for a
/// field that is missing, 62 without a record, each with the number of its line.
MonitorHeader readMonitorHeader(const std::string& path, const std::function<void()>& onProgress = {},
                                const std::function<void(const std::string&)>& onStation = {});

}  // namespace zg
