#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/FileLock.h"

namespace zg {

namespace {

/// Some network file systems occasionally number an open file differently from its name.
constexpr int mostTries = 100;

int fileOf(std::intptr_t handle) { return static_cast<int>(handle); }

bool lockNow(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0; }

bool isOne(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

/// A run that looks for files of killed processes may lock the new file before this process does.
FileLock::Outcome FileLock::takeNew() {
    const int file = open(name_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0) return errno == EEXIST ? Outcome::Held : Outcome::Failed;
    struct stat state = {};
    const bool locked = lockNow(file);
    if (locked && fstat(file, &state) == 0 && state.st_nlink > 0) {
        handle_ = file;
        return Outcome::Taken;
    }
    const bool isHeld = locked || errno == EWOULDBLOCK;
    if (!isHeld) unlink(name_.c_str());
    close(file);
    errno = isHeld ? EEXIST : ENOLCK;
    return isHeld ? Outcome::Held : Outcome::Failed;
}

/// Between opening and locking, another process may have removed the file, and a third one created it again.
FileLock::Outcome FileLock::takeOld() {
    const int file = open(name_.c_str(), O_RDWR | O_CLOEXEC);
    if (file < 0) return Outcome::Failed;
    struct stat held = {};
    struct stat named = {};
    if (lockNow(file) && fstat(file, &held) == 0 && stat(name_.c_str(), &named) == 0 && isOne(held, named)) {
        handle_ = file;
        return Outcome::Taken;
    }
    close(file);
    return Outcome::Held;
}

FileLock::Outcome FileLock::takeAny() {
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    for (int tries = 0; tries < mostTries; ++tries) {
        int file = open(name_.c_str(), O_RDWR | O_CREAT | flags, 0666);
        // A file of another user can still be locked.
        if (file < 0) file = open(name_.c_str(), O_RDONLY | flags);
        if (file < 0) return Outcome::Failed;
        const bool locked = lockNow(file);
        const int error = errno;
        struct stat held = {};
        struct stat named = {};
        if (locked && fstat(file, &held) == 0 && lstat(name_.c_str(), &named) == 0 && isOne(held, named)) {
            handle_ = file;
            return Outcome::Taken;
        }
        close(file);
        errno = error;
        if (!locked && error != EINTR) return error == EWOULDBLOCK ? Outcome::Held : Outcome::Failed;
    }
    return Outcome::Failed;
}

void FileLock::release() {
    if (isTaken()) close(fileOf(handle_));
    handle_ = none;
}

void FileLock::removeAndRelease() {
    if (isTaken()) unlink(name_.c_str());
    release();
}

}  // namespace zg
