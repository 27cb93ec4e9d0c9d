#pragma once

// Partial runs joined: their counts are added.

#include <string>
#include <vector>

#include "tempoline/RoseReport.h"

namespace zg::tempoline {

/// Adds the counts of a partial run to a sum. Throws where the two differ in step, zone, height, class
/// limits, months of the seasons or roses; the names are for messages.
void addCounts(RoseReport& sum, const RoseReport& part, const std::string& sumFile,
               const std::string& partFile);

/// Throws where two of the runs counted the same series over periods that overlap.
void needDistinctRuns(std::vector<CountedRun> runs);

/// Reads the TAB files and writes name.frq and name.tab. Nothing is replaced before all is well.
void mergeTabs(const std::vector<std::string>& files, const std::string& name);

}  // namespace zg::tempoline
