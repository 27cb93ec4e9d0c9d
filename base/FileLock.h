#pragma once

// A file that one process can hold at a time. The system releases it when the process ends in any way; the
// file itself then remains, and another process may hold it.

#include <cstdint>
#include <string>

namespace zg {

class FileLock {
 public:
    enum class Of { NewFile, OldFile, AnyFile };
    enum class Outcome {
        Taken,
        Held,    ///< by anybody, including this process; for a new file also if the name is in use
        Failed,  ///< no such file, no right to it, or a file system without locks; errno says why
    };

    FileLock() = default;
    ~FileLock() { release(); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Opens or creates the file of that name and holds it. A file that was released and removed meanwhile is
    /// not mistaken for the one with the name.
    Outcome take(const std::string& name, Of kind);

    bool isTaken() const { return handle_ != none; }

    /// Releases the lock; the file remains.
    void release();

    /// Removes the file before releasing the lock.
    void removeAndRelease();

 private:
    static constexpr std::intptr_t none = -1;

    Outcome takeNew();
    Outcome takeOld();
    Outcome takeAny();

    std::intptr_t handle_ = none;  ///< the system's number of the open file
    std::string name_;
};

}  // namespace zg
