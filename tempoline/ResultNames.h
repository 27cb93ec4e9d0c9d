#pragma once

// The names of a run's results, and the check that each can be written.

#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/OlderResults.h"

namespace zg::tempoline {

/// In the order of the outputs: series, counts and roses of each, as far as the run writes them.
std::vector<ResultSet> resultsOf(const Control& control);

/// As far as a possibly damaged control file gives them; without those that are, by name or as a file, the
/// control file, the listing or an input.
std::vector<ResultSet> readableResults(std::string_view text, const std::string& controlFile);

/// Throws a Failure of status BadControl if two outputs have one name (in any letter case, if the file system
/// of the current directory ignores case), if a name is one that older results are kept under, or if a result
/// or an older one would replace the control file or an input.
void needNamesApart(const Control& control);

}  // namespace zg::tempoline
