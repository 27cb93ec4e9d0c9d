#pragma once

// Blocks of a file in order, by one thread or with a second one that reads ahead.

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

    /// Puts up to blockSize bytes at the place and gives their number, 0 at the end; lineEnds become the
    /// offsets of their line feeds. Throws a Failure.
    virtual std::size_t read(char* place, std::vector<std::uint32_t>& lineEnds) = 0;

    /// From another thread: a read that waits for a pipe gives up, and gives 0.
    virtual void stop() {}
};

/// Reads when asked. A regular file that ends before the size it had when it was opened became shorter while
/// it was read: that is a failure.
std::unique_ptr<BlockReader> openBlocks(const std::string& path);

/// The same with a thread that stays up to three blocks ahead, the search for their lines included.
std::unique_ptr<BlockReader> openBlocksAhead(const std::string& path);

}  // namespace zg::tempoline
