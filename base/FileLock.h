#pragma once

// A file that one process holds at a time. The system lets go of it when the process ends, however it ends;
// the file itself stays then, and another may take it.

#include <cstdint>
#include <string>

namespace zg {

class FileLock {
 public:
    enum class Of { NewFile, OldFile, AnyFile };
    enum class Outcome {
        Taken,
        Held,    ///< by another, of this process too; for a new file also where the name is taken
        Failed,  ///< no such file, no right to it, or a file system without locks; errno says why
    };

    FileLock() = default;
    ~FileLock() { release(); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Opens the file of that name, or makes it, and holds it. A file that was given up and removed in the
    /// meantime is not taken for that of the name.
    Outcome take(const std::string& name, Of kind);

    bool isTaken() const { return handle_ != none; }

    /// Others may take it; the file stays.
    void release();

    /// The file goes, and only then may others take the name.
    void removeAndRelease();

 private:
    static constexpr std::intptr_t none = -1;

    Outcome takeNew();
    Outcome takeOld();
    Outcome takeAny();

    std::intptr_t handle_ = none;  ///< as the system numbers open files
    std::string name_;
};

}  // namespace zg
