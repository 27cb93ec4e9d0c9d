#pragma once

// Where the listing of a run goes: never over the control file, the data or the results.

#include <string>
#include <string_view>

namespace zg::tempoline {

extern const char* const defaultListing;

/// The name of the listing, as far as it can be told from a file however broken; the default without one,
/// and where the name leads out of the current directory. Throws a Failure of status BadControl where it is
/// that of the control file, of an input or of a result of the run.
std::string freeListingName(std::string_view text, const std::string& controlFile);

/// The same path, or two paths of one file that is there.
bool isSameFile(const std::string& a, const std::string& b);

}  // namespace zg::tempoline
