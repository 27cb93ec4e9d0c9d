#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

#include "base/Files.h"

namespace zg {

namespace {

constexpr std::size_t longestPart = 255;  // bytes

/// The system would look up only the part of such a name before the NUL.
bool holdsNul(const std::string& name) {
    if (name.find('\0') == std::string::npos) return false;
    errno = ENOENT;
    return true;
}

FileState stateOf(const struct stat& found) {
    FileState state;
    if (S_ISREG(found.st_mode)) state.kind = FileKind::Plain;
    if (S_ISDIR(found.st_mode)) state.kind = FileKind::Directory;
    if (S_ISREG(found.st_mode)) state.size = static_cast<std::uint64_t>(found.st_size);
    state.identity = {static_cast<std::uint64_t>(found.st_dev), static_cast<std::uint64_t>(found.st_ino)};
    return state;
}

}  // namespace

std::optional<FileState> stateOfFile(const std::string& name) {
    struct stat found = {};
    if (holdsNul(name) || stat(name.c_str(), &found) != 0) return {};
    return stateOf(found);
}

std::optional<FileState> stateOfName(const std::string& name) {
    struct stat found = {};
    if (holdsNul(name) || lstat(name.c_str(), &found) != 0) return {};
    return stateOf(found);
}

bool isOwnFile(const std::string& name) {
    struct stat found = {};
    return !holdsNul(name) && lstat(name.c_str(), &found) == 0 && found.st_uid == geteuid();
}

bool isTooLongName(std::string_view name) { return name.size() > longestPart; }

std::vector<std::string> namesIn(const std::string& directory) {
    std::vector<std::string> names;
    if (holdsNul(directory)) return names;
    const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(directory.c_str()), closedir);
    if (!open) return names;
    while (const dirent* const entry = readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
    return names;
}

std::FILE* openStream(const std::string& name, const char* mode) {
    return holdsNul(name) ? nullptr : std::fopen(name.c_str(), mode);
}

bool reachDisk(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }

bool makeFile(const std::string& name) {
    if (holdsNul(name)) return false;
    const int file = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file >= 0) close(file);
    return file >= 0;
}

bool makeDirectory(const std::string& name) { return !holdsNul(name) && mkdir(name.c_str(), 0777) == 0; }

bool appendToFile(const std::string& name, std::string_view bytes) {
    if (holdsNul(name)) return false;
    const int file = open(name.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (file < 0) return false;
    int error = 0;
    while (!bytes.empty() && error == 0) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            error = errno;
    }
    if (close(file) != 0 && error == 0 && errno != EINTR) error = errno;
    errno = error;
    return error == 0;
}

bool moveFile(const std::string& name, const std::string& newName) {
    return !holdsNul(name) && !holdsNul(newName) && std::rename(name.c_str(), newName.c_str()) == 0;
}

bool removeFile(const std::string& name) { return !holdsNul(name) && unlink(name.c_str()) == 0; }

void removeAtOnce(const char* name) noexcept { unlink(name); }

void copyPermissions(const std::string& from, const std::string& to) {
    struct stat old = {};
    constexpr mode_t all = 07777;
    if (!holdsNul(from) && lstat(from.c_str(), &old) == 0 && S_ISREG(old.st_mode))
        static_cast<void>(chmod(to.c_str(), old.st_mode & all) == 0);
}

bool removeDirectory(const std::string& name) { return !holdsNul(name) && rmdir(name.c_str()) == 0; }

bool removeTree(const std::string& name) {
    if (holdsNul(name)) return false;
    std::error_code error;
    std::filesystem::remove_all(name, error);
    return !error;
}

std::string wholePath(const std::string& name) {
    if (holdsNul(name)) return {};
    const std::unique_ptr<char, void (*)(void*)> path(realpath(name.c_str(), nullptr), std::free);
    return path ? path.get() : std::string();
}

bool isPlainName(std::string_view name) {
    return !name.empty() && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos && name != "." && name != "..";
}

std::string asPartOfName(std::string_view text) { return std::string(text); }

std::string nameKey(std::string_view name) { return std::string(name); }

std::string machineName() {
    std::array<char, 65> name{};
    if (gethostname(name.data(), name.size() - 1) != 0) return "unknown";
    std::string text = name.data();
    std::replace(text.begin(), text.end(), '/', '_');
    return text;
}

std::uint64_t processNumber() { return static_cast<std::uint64_t>(getpid()); }

}  // namespace zg
