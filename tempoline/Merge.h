#pragma once

// Joins partial runs by adding their counts.

#include <string>
#include <vector>

#include "tempoline/RoseReport.h"

namespace zg::tempoline {

/// Adds the counts of a partial run to a sum. Throws if the two differ in step, zone, height, class limits,
/// months of the seasons or roses; the names are for messages.
void addCounts(RoseReport& sum, const RoseReport& part, const std::string& sumFile,
               const std::string& partFile);

/// Throws if two of the runs counted the same series over overlapping periods.
void needDistinctRuns(std::vector<CountedRun> runs);

/// Reads the TAB files and writes name.frq and name.tab. Nothing is replaced until all of it has succeeded.
void mergeTabs(const std::vector<std::string>& files, const std::string& name);

}  // namespace zg::tempoline
