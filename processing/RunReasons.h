#pragma once

// Why a run's marker does not come, or its result is missing, in one line for the user.

#include <string>

#include "base/Paths.h"
#include "processing/RunPlan.h"

namespace zg {

/// What prevents a run from ending, whatever the data: a blank in its name, which splits the processor's
/// command line, or a sign that splits a command of the shell of Windows, identified by its separator; or no
/// processor in its directory. "" if none.
std::string foreseenTrouble(const std::string& base, const std::string& programDirectory,
                            char separator = pathSeparator);

/// The same for a run, whose name has that character from the input, the table of stations or the height.
std::string foreseenTrouble(const RunPlan& plan);

/// The last line of a listing that is not empty; "" if there is none. Letter case of the name as in
/// existingFile.
std::string lastLineOfListing(const std::string& path);

/// The warnings of a listing, one per line, at most the first three; "" if there are none.
std::string warningsOfListing(const std::string& path);

}  // namespace zg
