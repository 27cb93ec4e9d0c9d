#pragma once

// Why a run's marker does not come, or its result is missing, in one line for the user.

#include <string>

#include "processing/RunPlan.h"

namespace zg {

/// What prevents the processor from working, whatever the data: a blank in the run's name, which splits its
/// command line, or no processor in its directory. "" if neither.
std::string foreseenTrouble(const std::string& base, const std::string& programDirectory);

/// The same for a run, whose name has its blank from the input, the table of stations or the height.
std::string foreseenTrouble(const RunPlan& plan);

/// The last line of a listing that is not empty; "" if there is none. Letter case of the name as in
/// existingFile.
std::string lastLineOfListing(const std::string& path);

/// The warnings of a listing, one per line, at most the first three; "" if there are none.
std::string warningsOfListing(const std::string& path);

}  // namespace zg
