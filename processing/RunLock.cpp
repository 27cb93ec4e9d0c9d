#include "processing/RunLock.h"

#include <filesystem>
#include <map>
#include <system_error>

#ifdef _WIN32
#include <share.h>

#include <cerrno>
#include <cstdio>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace zg {

namespace {

constexpr const char* lockName = "run_tempoline.lock";

/// The locks of this process by the names of their files.
std::map<std::string, std::weak_ptr<RunLock>>& ownLocks() {
    static std::map<std::string, std::weak_ptr<RunLock>> locks;
    return locks;
}

enum class Taken { Yes, ByAnother, NoLocks };

/// The same name for a directory however it is written.
std::string lockPathIn(const std::string& directory) {
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::canonical(directory, error);
    return error ? directory + lockName : (whole / lockName).string();
}

}  // namespace

#ifdef _WIN32

struct RunLock::Handle {
    std::FILE* file = nullptr;
    std::string path;

    Taken take() {
        file = _fsopen(path.c_str(), "wb", _SH_DENYRW);
        if (file != nullptr) return Taken::Yes;
        return errno == EACCES ? Taken::ByAnother : Taken::NoLocks;
    }
    ~Handle() {
        if (file == nullptr) return;
        std::fclose(file);
        std::remove(path.c_str());
    }
};

#else

struct RunLock::Handle {
    /// Some network file systems occasionally number an open file differently from its name.
    static constexpr int mostTries = 100;

    int file = -1;
    std::string path;

    void open() {
        constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
        file = ::open(path.c_str(), O_RDWR | O_CREAT | flags, 0666);
        // A lock file of another user can still be locked.
        if (file < 0) file = ::open(path.c_str(), O_RDONLY | flags);
    }
    void close() {
        if (file >= 0) ::close(file);
        file = -1;
    }
    /// Another process may have removed the file between opening and locking it.
    bool hasItsName() const {
        struct stat opened = {};
        struct stat named = {};
        return fstat(file, &opened) == 0 && lstat(path.c_str(), &named) == 0 &&
               opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
    }
    Taken take() {
        for (int tries = 0; tries < mostTries; ++tries, close()) {
            open();
            if (file < 0) return Taken::NoLocks;
            if (flock(file, LOCK_EX | LOCK_NB) == 0) {
                if (hasItsName()) return Taken::Yes;
            } else if (errno != EINTR) {
                const bool held = errno == EWOULDBLOCK;
                close();
                return held ? Taken::ByAnother : Taken::NoLocks;
            }
        }
        return Taken::NoLocks;
    }
    ~Handle() {
        if (file >= 0) unlink(path.c_str());
        close();
    }
};

#endif

RunLock::RunLock(std::unique_ptr<Handle> handle) : handle_(std::move(handle)) {}

RunLock::~RunLock() { ownLocks().erase(handle_->path); }

std::shared_ptr<RunLock> RunLock::take(const std::string& directory) {
    auto handle = std::make_unique<Handle>();
    const std::string path = lockPathIn(directory);
    handle->path = path;
    if (std::shared_ptr<RunLock> own = ownLocks()[path].lock()) return own;
    if (handle->take() == Taken::ByAnother) return nullptr;
    std::shared_ptr<RunLock> lock(new RunLock(std::move(handle)));
    ownLocks()[path] = lock;
    return lock;
}

}  // namespace zg
