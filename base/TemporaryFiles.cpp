#include "base/TemporaryFiles.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <string_view>

#include "base/Files.h"

namespace zg {

namespace {

constexpr std::string_view lockEnding = ".lock";
constexpr std::string_view temporaryEnding = ".tmp";
constexpr int mostNumbers = 1000;
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

/// The common prefix of the files of one process: its machine, its number and another one; nothing if the
/// name is not one of these.
std::optional<std::string> stemOf(std::string_view name, const std::string& prefix) {
    if (!name.starts_with(prefix)) return {};
    if (cutEnding(name, lockEnding)) return std::string(name);
    if (!cutEnding(name, temporaryEnding) || !cutNumber(name)) return {};
    return std::string(name);
}

bool isOfThisMachine(std::string_view stem, const std::string& prefix) {
    return cutNumber(stem) && cutNumber(stem) && stem == prefix + machineName();
}

/// The files in the place that processes have left or are using, grouped by process.
std::map<std::string, std::vector<std::string>> filesOfRuns(const TemporaryPlace& place) {
    std::map<std::string, std::vector<std::string>> files;
    for (const std::string& name : namesIn(place.directory.empty() ? "." : place.directory)) {
        const std::optional<std::string> stem = stemOf(name, place.prefix);
        if (stem && (!place.ownOnly || isOwnFile(place.directory + name))) files[*stem].push_back(name);
    }
    return files;
}

/// The lock goes last: while it exists, the next one finds what is left to remove.
void removeFiles(const std::string& directory, const std::vector<std::string>& names,
                 const std::string& lockName, FileLock& lock) {
    bool isGone = true;
    for (const std::string& name : names)
        if (name != lockName) isGone = removeTree(directory + name) && isGone;
    isGone ? lock.removeAndRelease() : lock.release();
}

}  // namespace

/// A killed process, or one in another container, may have had the same number, and one that looks for
/// remains may lock the file before this one does: then the next number is taken. If no lock can be made the
/// names are still used; nobody takes them for those of a dead process.
TemporaryFiles::TemporaryFiles(TemporaryPlace place) : place_(std::move(place)) {
    const std::string own = place_.prefix + machineName() + "-" + std::to_string(processNumber()) + "-";
    for (int i = 1; i <= mostNumbers; ++i) {
        stem_ = own + std::to_string(i);
        const std::string lockName = place_.directory + stem_ + std::string(lockEnding);
        if (lock_.take(lockName, FileLock::Of::NewFile) != FileLock::Outcome::Held) return;
    }
}

TemporaryFiles::~TemporaryFiles() { lock_.removeAndRelease(); }

/// Repeats until the call succeeds with an unused name.
template <typename Make>
std::string TemporaryFiles::underNewName(Make make) {
    for (;;) {
        std::string name =
            place_.directory + stem_ + "-" + std::to_string(++count_) + std::string(temporaryEnding);
        if (make(name)) return name;
        if (errno != EEXIST) return {};
    }
}

std::string TemporaryFiles::makeFile() { return underNewName(zg::makeFile); }

std::string TemporaryFiles::makeDirectory() { return underNewName(zg::makeDirectory); }

std::string TemporaryFiles::removeRemains() const {
    std::string named;
    std::size_t runs = 0;
    for (const auto& [stem, names] : filesOfRuns(place_)) {
        if (stem == stem_) continue;
        const std::string lockName = stem + std::string(lockEnding);
        const bool hasLock = std::find(names.begin(), names.end(), lockName) != names.end();
        if (isOfThisMachine(stem, place_.prefix) && hasLock) {
            FileLock lock;
            if (lock.take(place_.directory + lockName, FileLock::Of::OldFile) != FileLock::Outcome::Taken)
                continue;  // that process is alive
            removeFiles(place_.directory, names, lockName, lock);
        } else if (++runs <= mostRunsNamed) {
            named += (named.empty() ? "" : ", ") + stem + "* (" + std::to_string(names.size()) +
                     (names.size() == 1 ? " file)" : " files)");
        }
    }
    if (runs > mostRunsNamed) named += " and those of " + std::to_string(runs - mostRunsNamed) + " more";
    return named.empty() ? "" : "of runs that may go on elsewhere there are " + named;
}

}  // namespace zg
