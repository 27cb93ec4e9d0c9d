#include "processing/RunLock.h"

#include <map>

#include "base/FileLock.h"
#include "base/Files.h"
#include "base/Paths.h"

namespace zg {

namespace {

constexpr const char* lockName = "run_tempoline.lock";

/// The locks of this process by the names of their files.
std::map<std::string, std::weak_ptr<RunLock>>& ownLocks() {
    static std::map<std::string, std::weak_ptr<RunLock>> locks;
    return locks;
}

/// The same name for a directory however it is written.
std::string lockPathIn(const std::string& directory) {
    const std::string whole = wholePath(directory);
    if (whole.empty()) return directory + lockName;
    return whole + (whole.ends_with(pathSeparator) ? "" : std::string(1, pathSeparator)) + lockName;
}

}  // namespace

struct RunLock::Handle {
    FileLock lock;
    std::string path;

    FileLock::Outcome take() { return lock.take(path, FileLock::Of::AnyFile); }
    ~Handle() { lock.removeAndRelease(); }
};

RunLock::RunLock(std::unique_ptr<Handle> handle) : handle_(std::move(handle)) {}

RunLock::~RunLock() { ownLocks().erase(handle_->path); }

std::shared_ptr<RunLock> RunLock::take(const std::string& directory) {
    auto handle = std::make_unique<Handle>();
    const std::string path = lockPathIn(directory);
    handle->path = path;
    if (std::shared_ptr<RunLock> own = ownLocks()[path].lock()) return own;
    if (handle->take() == FileLock::Outcome::Held) return nullptr;
    std::shared_ptr<RunLock> lock(new RunLock(std::move(handle)));
    ownLocks()[path] = lock;
    return lock;
}

}  // namespace zg
