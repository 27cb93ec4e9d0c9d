#pragma once

// A run waits for a marker of a fixed name, and its batch file has a fixed name too: two programs with runs
// in one directory would end each other's wait. The first one holds a file beside the batch file.

#include <memory>
#include <string>

namespace zg {

/// Held from its making to its end, or to that of its process, however that comes. A second run of the same
/// process shares it.
class RunLock {
 public:
    /// Nothing where another process holds the lock of that directory (given with its final separator). Where
    /// the file system has no locks, or the directory takes no files, the run goes on without one.
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
