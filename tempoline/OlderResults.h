#pragma once

// A person takes a result for that of the last run. So that it is, a run moves older results of its names
// aside before it reads any data; they are removed when it has succeeded, and stay aside when it has not.

#include <sys/types.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zg::tempoline {

/// The files of one output in the order in which they take their names: the last one stands where all do.
using ResultSet = std::vector<std::string>;

/// "out.previous.frq" of "out.frq".
std::string asideName(const std::string& result);

/// Whether results of that output have names under which older ones of another are kept.
bool isKeptForOlder(const std::string& output);

class OlderResults {
 public:
    /// Gives the files that have these names their names aside, one renaming after the other, so that each of
    /// them is under one of its two names whenever the run is killed. What is aside already stays in place of
    /// files that a killed run left behind, of which not all have their names; whole results take its place.
    /// Tries all of them; gives what is wrong where one cannot be moved, else nothing.
    std::string putAside(const std::vector<ResultSet>& sets);

    /// After success: removes those that are aside. Gives the names that could not be removed.
    std::vector<std::string> remove() const;

    /// The names under which older results are now, those of earlier failures too.
    std::vector<std::string> kept() const;

 private:
    using Identity = std::pair<dev_t, ino_t>;

    void note(const std::string& name);

    std::map<std::string, Identity> aside_;  ///< by name
};

/// One line for the person; empty without names. With many of them the first ones stand there.
std::string keptText(const std::vector<std::string>& names);

}  // namespace zg::tempoline
