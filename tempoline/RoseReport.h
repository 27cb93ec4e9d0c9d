#pragma once

// Everything that the files of one rose report: what was counted, from which data, over which period.

#include <string>
#include <vector>

#include "tempoline/RoseTable.h"

namespace zg::tempoline {

/// One run that contributed to the counts.
struct CountedRun {
    Seconds begin = 0;
    Seconds end = 0;
    std::string what;  ///< kind and names of the input, station and height: equal texts mean the same series
};

struct RoseReport {
    std::string title1;  ///< station or run
    std::string title2;  ///< kind and name of the input
    std::string height;  ///< "10.0 m"
    std::string zone;
    Seconds begin = 0;
    Seconds end = 0;
    Seconds step = secondsAnHour;
    RoseRules rules;
    bool hasRecords = true;  ///< whether a record is in the period
    std::vector<CountedRun> runs;
    std::vector<RoseCounts> roses;
};

/// The text on one line, without control characters and trimmed.
std::string oneLine(const std::string& text);

}  // namespace zg::tempoline
