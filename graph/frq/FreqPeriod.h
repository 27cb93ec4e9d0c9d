#pragma once

// The period line of the header and its form in the subtitle.

#include <string>
#include <string_view>

#include "graph/frq/FreqVersion.h"

namespace zg {

/// Puts the text for the line into periodText, such as "Jan 1, 2001 - HR00 to Dec 31, 2001 - HR23" or "Jan 1,
/// 2001 - 12:00:00 AM to Jan 1, 2002 - 12:00:00 AM (UTC-0500)". Raises 9 for a missing token and 13 for an
/// invalid date, hour or time; for a missing zone the text so far remains.
void readFreqPeriod(std::string_view line, const FreqVersion& version, std::string& periodText);

}  // namespace zg
