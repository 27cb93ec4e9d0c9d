#include "tempoline/Temporaries.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>

namespace zg::tempoline {

namespace {

constexpr std::string_view prefix = ".tempoline-";
constexpr std::string_view lockEnding = ".lock";
constexpr std::string_view temporaryEnding = ".tmp";
constexpr int mostTries = 1000;
constexpr std::size_t mostRunsNamed = 3;

/// The name of this machine, usable in a file name.
std::string machineName() {
    std::array<char, 65> name{};
    if (gethostname(name.data(), name.size() - 1) != 0) return "unknown";
    std::string text = name.data();
    std::replace(text.begin(), text.end(), '/', '_');
    return text;
}

/// Opens a lock that nobody holds and locks it for this process; -1 if a run holds it or that cannot be
/// determined. The lock belongs to the open file: the system releases it when the process ends in any way.
int takeLock(const std::string& name) {
    const int file = open(name.c_str(), O_RDWR | O_CLOEXEC);
    if (file < 0) return -1;
    struct stat held = {};
    struct stat named = {};
    // Between the two calls another run may have removed the file, and a third one created it again.
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && fstat(file, &held) == 0 && stat(name.c_str(), &named) == 0 &&
        held.st_dev == named.st_dev && held.st_ino == named.st_ino)
        return file;
    close(file);
    return -1;
}

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
    std::error_code error;
    for (std::filesystem::directory_iterator entry(".", error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (const std::optional<std::string> stem = stemOf(name)) files[*stem].push_back(name);
    }
    return files;
}

/// The lock goes last: while it exists, the next run finds what is left to remove.
void removeFiles(const std::vector<std::string>& names, const std::string& lockName) {
    std::error_code ignored;
    for (const std::string& name : names)
        if (name != lockName) std::filesystem::remove_all(name, ignored);
    unlink(lockName.c_str());
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

/// If no lock can be made the names are still used; nobody takes them for those of a dead run.
Temporaries::Temporaries() {
    const std::string own = std::string(prefix) + machineName() + "-" + std::to_string(getpid()) + "-";
    for (int i = 1; i <= mostTries; ++i) {
        stem_ = own + std::to_string(i);
        if (lock() || errno != EEXIST) return;
    }
}

/// A killed run, or one in another container, may have had the same process number, and a run that looks for
/// remains may lock the file before this one does: then take the next number.
bool Temporaries::lock() {
    const std::string name = stem_ + std::string(lockEnding);
    lock_ = open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (lock_ < 0) return false;
    struct stat state = {};
    const bool locked = flock(lock_, LOCK_EX | LOCK_NB) == 0;
    if (locked && fstat(lock_, &state) == 0 && state.st_nlink > 0) return true;
    const bool isTaken = locked || errno == EWOULDBLOCK;
    if (!isTaken) unlink(name.c_str());
    close(lock_);
    lock_ = -1;
    errno = isTaken ? EEXIST : ENOLCK;
    return false;
}

Temporaries::~Temporaries() {
    if (lock_ < 0) return;
    unlink((stem_ + std::string(lockEnding)).c_str());
    close(lock_);
}

/// Repeats until the call succeeds with an unused name.
template <typename Make>
std::string Temporaries::underNewName(Make make) {
    for (;;) {
        std::string name = stem_ + "-" + std::to_string(++count_) + std::string(temporaryEnding);
        if (make(name.c_str())) return name;
        if (errno != EEXIST) return {};
    }
}

std::string Temporaries::makeFile() {
    return underNewName([](const char* name) {
        const int file = open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file >= 0) close(file);
        return file >= 0;
    });
}

std::string Temporaries::makeDirectory() {
    return underNewName([](const char* name) { return mkdir(name, 0777) == 0; });
}

std::string Temporaries::removeRemains() const {
    std::string named;
    std::size_t runs = 0;
    for (const auto& [stem, names] : filesOfRuns()) {
        if (stem == stem_) continue;
        const std::string lockName = stem + std::string(lockEnding);
        const bool hasLock = std::find(names.begin(), names.end(), lockName) != names.end();
        if (isOfThisMachine(stem) && hasLock) {
            const int file = takeLock(lockName);
            if (file < 0) continue;  // that run is alive
            removeFiles(names, lockName);
            close(file);
        } else if (++runs <= mostRunsNamed) {
            named += (named.empty() ? "" : ", ") + stem + "* (" + std::to_string(names.size()) +
                     (names.size() == 1 ? " file)" : " files)");
        }
    }
    if (runs > mostRunsNamed) named += " and those of " + std::to_string(runs - mostRunsNamed) + " more";
    return named.empty() ? "" : "of runs that may go on elsewhere there are " + named;
}

}  // namespace zg::tempoline
