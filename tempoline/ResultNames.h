#pragma once

// The names of a run's results: what they are, and that each is free for one.

#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/OlderResults.h"

namespace zg::tempoline {

/// In the order of the outputs: series, counts and roses of each, as far as the run makes them.
std::vector<ResultSet> resultsOf(const Control& control);

/// As far as they can be told from a file however broken: without those that are the control file, the
/// listing or an input, by either name.
std::vector<ResultSet> readableResults(std::string_view text, const std::string& controlFile);

/// Throws a Failure of status BadControl where two outputs have one name (in any letter case where the file
/// system of the current directory tells none apart), where a name is one that older results are kept under,
/// and where a result or an older one would take the place of the control file or of an input.
void needNamesApart(const Control& control);

}  // namespace zg::tempoline
