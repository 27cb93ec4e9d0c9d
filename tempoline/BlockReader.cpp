#include "tempoline/BlockReader.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>

#include "base/InputFile.h"
#include "tempoline/Failure.h"
#include "tempoline/Interrupt.h"
#include "tempoline/UnzippedBlocks.h"

namespace zg::tempoline {

namespace {

[[noreturn]] void failWithErrno(const std::string& path, int error) {
    throw Failure(ExitStatus::Failed, path + ": " + std::strerror(error));
}

class PlainBlocks : public BlockReader {
 public:
    explicit PlainBlocks(const std::string& path) : path_(path) {
        if (const int error = file_.open(path, throwIfInterrupted); error != 0) failWithErrno(path, error);
    }

    void stop() override { stopped_ = true; }

    std::size_t read(char* place, std::vector<std::uint32_t>& lineEnds) override {
        throwIfInterrupted();
        lineEnds.clear();
        if (!file_.isPlain() && !waitForInput()) return 0;
        std::ptrdiff_t got = 0;
        while ((got = file_.read(place, blockSize)) < 0) {
            throwIfInterrupted();
            if (errno != EINTR) failWithErrno(path_, errno);
        }
        given_ += got;
        if (got == 0 && file_.isPlain() && given_ < file_.size())
            throw Failure(ExitStatus::Failed,
                          path_ + ": the file became shorter while it was read: " + std::to_string(given_) +
                              " of " + std::to_string(file_.size()) + " bytes were there");
        findLineEnds(place, static_cast<std::size_t>(got), lineEnds);
        return static_cast<std::size_t>(got);
    }

 private:
    /// A pipe may stay silent for ever, so at intervals the caller is asked whether the run goes on. False if
    /// it does not.
    bool waitForInput() const {
        constexpr int milliseconds = 100;
        while (!stopped_) {
            const InputFile::Wait wait = file_.waitForBytes(milliseconds);
            const int error = errno;
            throwIfInterrupted();
            if (wait == InputFile::Wait::Ready) return true;
            if (wait == InputFile::Wait::Failed) failWithErrno(path_, error);
        }
        return false;
    }

    std::string path_;
    InputFile file_;
    std::atomic<bool> stopped_ = false;
    std::int64_t given_ = 0;
};

class BlocksAhead : public BlockReader {
 public:
    explicit BlocksAhead(const std::string& path) : plain_(openBlocks(path)) {
        for (Block& block : ring_) block.bytes.resize(blockSize);
        thread_ = std::thread([this] { run(); });
    }
    ~BlocksAhead() override {
        {
            const std::lock_guard lock(mutex_);
            stop_ = true;
        }
        plain_->stop();
        changed_.notify_all();
        thread_.join();
    }
    BlocksAhead(const BlocksAhead&) = delete;
    BlocksAhead& operator=(const BlocksAhead&) = delete;

    std::size_t read(char* place, std::vector<std::uint32_t>& lineEnds) override {
        throwIfInterrupted();
        lineEnds.clear();
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return ready_ > 0 || ended_; });
        if (ready_ == 0) {
            if (error_) std::rethrow_exception(error_);
            return 0;
        }
        Block& block = ring_[taken_ % ring_.size()];
        lock.unlock();
        std::memcpy(place, block.bytes.data(), block.size);
        lineEnds.swap(block.lineEnds);
        const std::size_t size = block.size;
        lock.lock();
        ++taken_;
        --ready_;
        lock.unlock();
        changed_.notify_all();
        return size;
    }

 private:
    struct Block {
        std::vector<char> bytes;
        std::vector<std::uint32_t> lineEnds;
        std::size_t size = 0;
    };

    void run() {
        try {
            for (std::size_t filled = 0;; ++filled) {
                {
                    std::unique_lock lock(mutex_);
                    changed_.wait(lock, [this] { return stop_ || ready_ < ring_.size(); });
                    if (stop_) return;
                }
                Block& block = ring_[filled % ring_.size()];
                block.size = plain_->read(block.bytes.data(), block.lineEnds);
                if (block.size == 0) break;
                {
                    const std::lock_guard lock(mutex_);
                    ++ready_;
                }
                changed_.notify_all();
            }
        } catch (...) {
            const std::lock_guard lock(mutex_);
            error_ = std::current_exception();
        }
        {
            const std::lock_guard lock(mutex_);
            ended_ = true;
        }
        changed_.notify_all();
    }

    std::unique_ptr<BlockReader> plain_;
    std::array<Block, 3> ring_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t taken_ = 0;
    std::size_t ready_ = 0;
    bool ended_ = false;
    bool stop_ = false;
    std::exception_ptr error_;
    std::thread thread_;
};

}  // namespace

std::unique_ptr<BlockReader> openBlocks(const std::string& path) {
    return unzippedBlocks(std::make_unique<PlainBlocks>(path), path);
}

std::unique_ptr<BlockReader> openBlocksAhead(const std::string& path) {
    return std::make_unique<BlocksAhead>(path);
}

}  // namespace zg::tempoline
