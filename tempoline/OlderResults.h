#pragma once

// A user will take any result for that of the last run. Therefore a run moves older results of its names
// aside before it reads data; it removes them when it succeeds and leaves them aside when it fails.

#include <map>
#include <string>
#include <vector>

#include "base/Files.h"

namespace zg::tempoline {

/// The files of one output in the order in which they get their names: if the last one exists, all do.
using ResultSet = std::vector<std::string>;

/// "out.previous.frq" for "out.frq".
std::string asideName(const std::string& result);

/// Whether results of that output would have names under which older results of another are kept.
bool isKeptForOlder(const std::string& output);

class OlderResults {
 public:
    /// Renames the existing files of these names to their names aside, one after the other, so that each is
    /// always under one of its two names, even if the run is killed. An incomplete set of results, which a
    /// killed run left, does not replace files that are already aside; a complete set does. Tries all files;
    /// returns the problem if one cannot be moved, otherwise nothing.
    std::string putAside(const std::vector<ResultSet>& sets);

    /// After success: removes the files that are aside. Returns the names that could not be removed.
    std::vector<std::string> remove() const;

    /// The names of the older results now aside, including those of earlier failed runs.
    std::vector<std::string> kept() const;

 private:
    void note(const std::string& name);

    std::map<std::string, FileIdentity> aside_;  ///< by name
};

/// One line of text; empty without names. Only the first of many names are listed.
std::string keptText(const std::vector<std::string>& names);

}  // namespace zg::tempoline
