#pragma once

// The period line of the header and the text that the subtitle makes of it.

#include <string>
#include <string_view>

#include "graph/frq/FreqVersion.h"

namespace zg {

/// Makes the text of the line in periodText, as "Jan 1, 2001 - HR00 to Dec 31, 2001 - HR23" or
/// "Jan 1, 2001 - 12:00:00 AM to Jan 1, 2002 - 12:00:00 AM (UTC-0500)". Raises 9 for a missing token and 13
/// for a date, an hour or a time that is none; a missing zone leaves the text made so far.
void readFreqPeriod(std::string_view line, const FreqVersion& version, std::string& periodText);

}  // namespace zg
