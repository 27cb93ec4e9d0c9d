#pragma once

// A file, a pipe or a device read by the system's own calls, block by block.

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

    /// Opens it, once, and gives 0, or what is wrong as errno has it; a directory is EISDIR. A pipe without a
    /// writer is waited for; whenever a signal ends the wait, look is called, which may throw.
    int open(const std::string& path, void (*look)());

    /// A plain file: its end is where its size says, and no wait for it is of use.
    bool isPlain() const { return plain_; }

    /// Bytes of a plain file when it was opened.
    std::int64_t size() const { return size_; }

    enum class Wait { Ready, Nothing, Failed };

    /// Waits for bytes, or for the end, up to so many milliseconds. A signal ends the wait with nothing.
    Wait waitForBytes(int milliseconds) const;

    /// Reads up to so many bytes and gives their number, 0 at the end; -1 where that fails, with EINTR in
    /// errno for a signal.
    std::ptrdiff_t read(char* place, std::size_t size);

 private:
    static constexpr std::intptr_t none = -1;

    std::intptr_t handle_ = none;  ///< as the system numbers open files
    bool plain_ = false;
    std::int64_t size_ = 0;
};

}  // namespace zg
