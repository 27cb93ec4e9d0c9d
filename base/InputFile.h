#pragma once

// Reads a file, a pipe or a device block by block with the system's own calls.

#include <cstddef>
#include <cstdint>
#include <string>

namespace zg {

class InputFile {
 public:
    InputFile() = default;
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// Opens it, once, and returns 0 or the errno of the failure; EISDIR for a directory. Waits for the
    /// writer of a pipe; whenever a signal interrupts the wait, calls `look`, which may throw.
    int open(const std::string& path, void (*look)());

    /// Whether it is a regular file: its end is determined by its size, and waiting is pointless.
    bool isPlain() const { return plain_; }

    /// Size of a regular file when it was opened.
    std::int64_t size() const { return size_; }

    enum class Wait { Ready, Nothing, Failed };

    /// Waits for bytes, or for the end, for at most this many milliseconds. A signal ends the wait without a
    /// result.
    Wait waitForBytes(int milliseconds) const;

    /// Reads up to this many bytes and returns their number, 0 at the end; -1 on failure, with EINTR in errno
    /// for a signal.
    std::ptrdiff_t read(char* place, std::size_t size);

 private:
    static constexpr std::intptr_t none = -1;

    std::intptr_t handle_ = none;  ///< the system's number of the open file
    bool plain_ = false;
    std::int64_t size_ = 0;
};

}  // namespace zg
