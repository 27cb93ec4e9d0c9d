#include "tempoline/ResultNames.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <set>

#include "base/Files.h"
#include "base/Text.h"
#include "tempoline/ControlLexer.h"
#include "tempoline/Failure.h"
#include "tempoline/ListingName.h"
#include "tempoline/Temporaries.h"

namespace zg::tempoline {

namespace {

ResultSet resultsNamed(const std::string& name, bool series, bool roses) {
    ResultSet set;
    if (series) set.push_back(name + ".tsf");
    if (roses) set.insert(set.end(), {name + ".tab", name + ".frq"});
    return set;
}

/// The files that no result may replace, by name and, if they exist, by identity.
class OtherFiles {
 public:
    void add(const std::string& name, const std::string& what) {
        names_.emplace(nameKey(name), what);
        if (const auto state = stateOfFile(name)) files_.emplace(state->identity, what);
    }

    /// What the file of that name is; empty if it may be replaced.
    std::string whatIs(const std::string& name) const {
        if (const auto found = names_.find(nameKey(name)); found != names_.end()) return found->second;
        const auto state = stateOfFile(name);
        if (!state) return {};
        const auto found = files_.find(state->identity);
        return found == files_.end() ? "" : found->second;
    }

 private:
    std::map<std::string, std::string> names_;
    std::map<FileIdentity, std::string> files_;
};

/// Equal for all names that any file system considers the same, and for some others.
std::string looseName(const std::string& name) {
    std::string loose;
    for (const char c : lcase(name))
        if (c > ' ' && c <= '~') loose += c;
    return loose;
}

/// Creates files with those names in a directory of its own beside the results.
class NameTrial {
 public:
    NameTrial() : temporaries_(Temporaries::ofThisRun()), directory_(temporaries_->makeDirectory()) {}
    ~NameTrial() {
        if (directory_.empty()) return;
        for (const std::string& name : made_) removeFile(path(name));
        removeDirectory(directory_);
    }
    NameTrial(const NameTrial&) = delete;
    NameTrial& operator=(const NameTrial&) = delete;

    /// The earlier name for the same file; empty if there is none.
    std::string takenBy(const std::string& name) {
        if (directory_.empty()) return {};
        if (make(name)) {
            made_.push_back(name);
            return {};
        }
        if (errno != EEXIST) return {};
        removeFile(path(name));
        const auto found = std::find_if(made_.begin(), made_.end(),
                                        [this](const std::string& other) { return make(other); });
        return found == made_.end() ? "" : *found;
    }

 private:
    std::string path(const std::string& name) const { return directory_ + "/" + name; }
    bool make(const std::string& name) const { return makeFile(path(name)); }

    std::shared_ptr<Temporaries> temporaries_;
    std::string directory_;
    std::vector<std::string> made_;
};

const char* nameKey(const Control& control) { return control.wantsSeries ? "TSFOUT" : "ROSEPLT"; }

void needOutputsApart(const Control& control) {
    std::map<std::string, std::size_t> lineOfName;
    std::map<std::string, std::vector<const OutputRequest*>> alike;
    const auto refuse = [&](const OutputRequest& output, const std::string& other) {
        const std::string same = other == output.name ? "has been given" : "is one with \"" + other + "\"";
        throw controlFailure(control.file, output.line, nameKey(control),
                             "the name \"" + output.name + "\" " + same + " in line " +
                                 std::to_string(lineOfName.at(other)) + ": each output needs one of its own");
    };
    for (const OutputRequest& output : control.outputs) {
        if (isKeptForOlder(output.name))
            throw controlFailure(control.file, output.line, nameKey(control),
                                 "\"" + output.name + "\" is a name under which older results are kept");
        if (!lineOfName.emplace(output.name, output.line).second) refuse(output, output.name);
        alike[looseName(output.name)].push_back(&output);
    }
    for (const auto& [loose, outputs] : alike) {
        if (outputs.size() < 2) continue;
        NameTrial trial;
        for (const OutputRequest* output : outputs)
            if (const std::string other = trial.takenBy(output->name); !other.empty()) refuse(*output, other);
    }
}

}  // namespace

std::vector<ResultSet> resultsOf(const Control& control) {
    std::vector<ResultSet> sets;
    for (const OutputRequest& output : control.outputs)
        sets.push_back(resultsNamed(output.name, control.wantsSeries, control.wantsRoses));
    return sets;
}

std::vector<ResultSet> readableResults(std::string_view text, const std::string& controlFile) {
    OtherFiles others;
    others.add(controlFile, "the control file");
    const std::vector<Assignment> assignments = readableAssignments(text);
    for (const Assignment& entry : assignments)
        if (entry.key == "METINP" || entry.key == "TSFLST") others.add(entry.value, "another file");
    std::vector<ResultSet> sets;
    for (const Assignment& entry : assignments) {
        if (entry.key != "TSFOUT" && entry.key != "ROSEPLT") continue;
        if (!isPlainName(entry.value) || isKeptForOlder(entry.value)) continue;
        ResultSet set;
        for (const std::string& name : resultsNamed(entry.value, entry.key == "TSFOUT", true))
            if (others.whatIs(name).empty() && others.whatIs(asideName(name)).empty()) set.push_back(name);
        if (!set.empty()) sets.push_back(set);
    }
    return sets;
}

void needNamesApart(const Control& control) {
    needOutputsApart(control);
    OtherFiles others;
    others.add(control.file, "the control file");
    for (const std::string& input : control.inputs) others.add(input, "an input");
    const auto needFree = [&](const std::string& name, const char* kind) {
        const std::string what = others.whatIs(name);
        if (!what.empty())
            throw Failure(ExitStatus::BadControl,
                          std::string("the ") + kind + " \"" + name + "\" would take the place of " + what);
    };
    for (const ResultSet& set : resultsOf(control)) {
        for (const std::string& name : set) {
            needFree(name, "result");
            needFree(asideName(name), "older result");
        }
    }
}

}  // namespace zg::tempoline
