#include "tempoline/Temporaries.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <string_view>

#include "base/Files.h"

namespace zg::tempoline {

namespace {

constexpr std::string_view prefix = ".tempoline-";
constexpr std::string_view lockEnding = ".lock";
constexpr std::string_view temporaryEnding = ".tmp";
constexpr int mostTries = 1000;
constexpr std::size_t mostRunsNamed = 3;

bool isNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Removes "-12" from the end.
bool cutNumber(std::string_view& name) {
    const std::size_t dash = name.rfind('-');
    if (dash == std::string_view::npos || !isNumber(name.substr(dash + 1))) return false;
    name = name.substr(0, dash);
    return true;
}

bool cutEnding(std::string_view& name, std::string_view ending) {
    if (name.size() < ending.size() || name.substr(name.size() - ending.size()) != ending) return false;
    name.remove_suffix(ending.size());
    return true;
}

/// The common prefix of the files of one run: its machine, its process and a number; nothing if the name is
/// not one of these.
std::optional<std::string> stemOf(std::string_view name) {
    if (name.substr(0, prefix.size()) != prefix) return {};
    if (cutEnding(name, lockEnding)) return std::string(name);
    if (!cutEnding(name, temporaryEnding) || !cutNumber(name)) return {};
    return std::string(name);
}

bool isOfThisMachine(std::string_view stem) {
    return cutNumber(stem) && cutNumber(stem) && stem == std::string(prefix) + machineName();
}

/// The files in the current directory that runs have left or are using, grouped by run.
std::map<std::string, std::vector<std::string>> filesOfRuns() {
    std::map<std::string, std::vector<std::string>> files;
    for (const std::string& name : namesIn("."))
        if (const std::optional<std::string> stem = stemOf(name)) files[*stem].push_back(name);
    return files;
}

/// The lock goes last: while it exists, the next run finds what is left to remove.
void removeFiles(const std::vector<std::string>& names, const std::string& lockName, FileLock& lock) {
    for (const std::string& name : names)
        if (name != lockName) removeTree(name);
    lock.removeAndRelease();
}

}  // namespace

std::shared_ptr<Temporaries> Temporaries::ofThisRun() {
    static std::weak_ptr<Temporaries> current;
    std::shared_ptr<Temporaries> temporaries = current.lock();
    if (!temporaries) {
        temporaries.reset(new Temporaries);
        current = temporaries;
    }
    return temporaries;
}

/// A killed run, or one in another container, may have had the same process number, and a run that looks for
/// remains may lock the file before this one does: then the next number is taken. If no lock can be made the
/// names are still used; nobody takes them for those of a dead run.
Temporaries::Temporaries() {
    const std::string own = std::string(prefix) + machineName() + "-" + std::to_string(processNumber()) + "-";
    for (int i = 1; i <= mostTries; ++i) {
        stem_ = own + std::to_string(i);
        const auto outcome = lock_.take(stem_ + std::string(lockEnding), FileLock::Of::NewFile);
        if (outcome != FileLock::Outcome::Held) return;
    }
}

Temporaries::~Temporaries() { lock_.removeAndRelease(); }

/// Repeats until the call succeeds with an unused name.
template <typename Make>
std::string Temporaries::underNewName(Make make) {
    for (;;) {
        std::string name = stem_ + "-" + std::to_string(++count_) + std::string(temporaryEnding);
        if (make(name)) return name;
        if (errno != EEXIST) return {};
    }
}

std::string Temporaries::makeFile() { return underNewName(zg::makeFile); }

std::string Temporaries::makeDirectory() { return underNewName(zg::makeDirectory); }

std::string Temporaries::removeRemains() const {
    std::string named;
    std::size_t runs = 0;
    for (const auto& [stem, names] : filesOfRuns()) {
        if (stem == stem_) continue;
        const std::string lockName = stem + std::string(lockEnding);
        const bool hasLock = std::find(names.begin(), names.end(), lockName) != names.end();
        if (isOfThisMachine(stem) && hasLock) {
            FileLock lock;
            if (lock.take(lockName, FileLock::Of::OldFile) != FileLock::Outcome::Taken)
                continue;  // that run is alive
            removeFiles(names, lockName, lock);
        } else if (++runs <= mostRunsNamed) {
            named += (named.empty() ? "" : ", ") + stem + "* (" + std::to_string(names.size()) +
                     (names.size() == 1 ? " file)" : " files)");
        }
    }
    if (runs > mostRunsNamed) named += " and those of " + std::to_string(runs - mostRunsNamed) + " more";
    return named.empty() ? "" : "of runs that may go on elsewhere there are " + named;
}

}  // namespace zg::tempoline
