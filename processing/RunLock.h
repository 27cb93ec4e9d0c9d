#pragma once

// A run waits for a marker with a fixed name, and its batch file has a fixed name too: two programs with runs
// in one directory would end each other's wait. The first one holds a lock file beside the batch file.

#include <memory>
#include <string>

namespace zg {

/// Held during the lifetime of the object, and released when the process ends in any way. A second run of the
/// same process shares it.
class RunLock {
 public:
    /// Nothing if another process holds the lock of that directory (given with its final separator). If the
    /// file system has no locks, or no file can be created in the directory, the run continues without one.
    static std::shared_ptr<RunLock> take(const std::string& directory);

    ~RunLock();
    RunLock(const RunLock&) = delete;
    RunLock& operator=(const RunLock&) = delete;

 private:
    struct Handle;
    explicit RunLock(std::unique_ptr<Handle> handle);

    std::unique_ptr<Handle> handle_;
};

}  // namespace zg
