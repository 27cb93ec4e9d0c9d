#pragma once

// Where the listing of a run is written: never over the control file, the data or the results.

#include <string>
#include <string_view>

namespace zg::tempoline {

extern const char* const defaultListing;

/// The name of the listing, as far as a possibly damaged file gives it; the default if the file gives none or
/// one that leads out of the current directory. Throws a Failure of status BadControl if the name is that of
/// the control file, of an input or of a result of the run.
std::string freeListingName(std::string_view text, const std::string& controlFile);

/// Whether both are the same path or lead to the same existing file.
bool isSameFile(const std::string& a, const std::string& b);

}  // namespace zg::tempoline
