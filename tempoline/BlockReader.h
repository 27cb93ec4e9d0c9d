#pragma once

// Reads a file in consecutive blocks, optionally with a second thread that reads ahead.

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace zg::tempoline {

class BlockReader {
 public:
    static constexpr std::size_t blockSize = std::size_t{1} << 20;

    virtual ~BlockReader() = default;

    /// Reads up to blockSize bytes to the given place and returns their number, 0 at the end; lineEnds
    /// receives the offsets of their line feeds. Throws a Failure.
    virtual std::size_t read(char* place, std::vector<std::uint32_t>& lineEnds) = 0;

    /// Called from another thread: a read that waits for a pipe gives up and returns 0.
    virtual void stop() {}
};

/// Offsets of the line feeds among the bytes.
void findLineEnds(const char* bytes, std::size_t size, std::vector<std::uint32_t>& lineEnds);

/// Reads on demand; a gzip file as it was before compression. A regular file that ends before the size it had
/// when it was opened was truncated during the run: that is a failure.
std::unique_ptr<BlockReader> openBlocks(const std::string& path);

/// The same, with a thread that reads up to three blocks ahead and also searches their line feeds.
std::unique_ptr<BlockReader> openBlocksAhead(const std::string& path);

}  // namespace zg::tempoline
