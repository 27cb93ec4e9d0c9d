#include "tempoline/ListingName.h"

#include <vector>

#include "base/Files.h"
#include "tempoline/ControlLexer.h"
#include "tempoline/OlderResults.h"

namespace zg::tempoline {

const char* const defaultListing = "TEMPOLINE.LST";

namespace {

/// Name and line; line 0 for the default.
Assignment listingOf(const std::vector<Assignment>& assignments) {
    for (const Assignment& entry : assignments) {
        const std::string& name = entry.value;
        if (entry.key != "TSFLST" || name.empty()) continue;
        if (!isPlainName(name)) break;
        return entry;
    }
    return {"TSFLST", defaultListing, 0};
}

bool isResult(const std::string& name, const Assignment& entry) {
    if (entry.key != "TSFOUT" && entry.key != "ROSEPLT") return false;
    for (const char* const ending : {".frq", ".tab", ".tsf"}) {
        const std::string result = entry.value + ending;
        if (nameKey(name) == nameKey(result) || nameKey(name) == nameKey(asideName(result))) return true;
    }
    return false;
}

}  // namespace

bool isSameFile(const std::string& a, const std::string& b) { return a == b || isOneFile(a, b); }

std::string freeListingName(std::string_view text, const std::string& controlFile) {
    const std::vector<Assignment> assignments = readableAssignments(text);
    const Assignment listing = listingOf(assignments);
    const auto refuse = [&](const char* what) {
        throw controlFailure(controlFile, listing.line, "TSFLST",
                             "the listing cannot be \"" + listing.value + "\", which is " + what);
    };
    if (isSameFile(listing.value, controlFile)) refuse("the control file");
    for (const Assignment& entry : assignments) {
        if (entry.key == "METINP" && isSameFile(listing.value, entry.value)) refuse("an input of the run");
        if (isResult(listing.value, entry)) refuse("a result of the run");
    }
    return listing.value;
}

}  // namespace zg::tempoline
