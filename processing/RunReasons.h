#pragma once

// Why a run's marker does not come, or its result is missing, in a line for the person.

#include <string>

namespace zg {

/// What keeps the processor from its work whatever the data are: a blank in the run's name, at which its
/// command line is parted; or no processor in its directory. "" for neither.
std::string foreseenTrouble(const std::string& base, const std::string& programDirectory);

/// The last line of a listing that is not empty; "" where there is none. Letter case of the name as in
/// existingFile.
std::string lastLineOfListing(const std::string& path);

/// The warnings of a listing, a line each, of many the first three; "" where it has none.
std::string warningsOfListing(const std::string& path);

}  // namespace zg
