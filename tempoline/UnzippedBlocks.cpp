#include "tempoline/UnzippedBlocks.h"

#include <cstring>

#include "base/RunTimeError.h"
#include "base/Unzip.h"
#include "tempoline/Failure.h"

namespace zg::tempoline {

void findLineEnds(const char* bytes, std::size_t size, std::vector<std::uint32_t>& lineEnds) {
    lineEnds.clear();
    const char* const end = bytes + size;
    const char* at = bytes;
    while (at != end) {
        const void* const found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
        if (found == nullptr) break;
        at = static_cast<const char*>(found) + 1;
        lineEnds.push_back(static_cast<std::uint32_t>(at - 1 - bytes));
    }
}

namespace {

class UnzippedBlocks : public BlockReader {
 public:
    UnzippedBlocks(std::unique_ptr<BlockReader> file, std::string path)
        : file_(std::move(file)), path_(std::move(path)) {}

    void stop() override { file_->stop(); }

    std::size_t read(char* place, std::vector<std::uint32_t>& lineEnds) override {
        if (unzipper_) return readZipped(place, lineEnds);
        const std::size_t got = file_->read(place, lineEnds);
        if (begun_ || !Unzipper::isZipped({place, got})) {
            begun_ = true;
            return got;
        }
        zipped_.resize(blockSize);
        std::memcpy(zipped_.data(), place, got);
        left_ = {zipped_.data(), got};
        unzipper_ = std::make_unique<Unzipper>();
        return readZipped(place, lineEnds);
    }

 private:
    std::size_t readZipped(char* place, std::vector<std::uint32_t>& lineEnds) {
        try {
            for (;;) {
                const std::size_t made = unzipper_->unzip(left_, place, blockSize);
                findLineEnds(place, made, lineEnds);
                if (made > 0) return made;
                const std::size_t got = file_->read(zipped_.data(), lineEnds);
                if (got == 0 && !unzipper_->isWhole()) Unzipper::failCutOff();
                if (got == 0) return 0;
                left_ = {zipped_.data(), got};
            }
        } catch (const RunTimeError& error) {
            throw Failure(ExitStatus::Failed, path_ + ": " + error.description);
        }
    }

    std::unique_ptr<BlockReader> file_;
    std::string path_;
    std::unique_ptr<Unzipper> unzipper_;  ///< of a gzip file
    std::vector<char> zipped_;
    std::string_view left_;
    bool begun_ = false;
};

}  // namespace

std::unique_ptr<BlockReader> unzippedBlocks(std::unique_ptr<BlockReader> file, const std::string& path) {
    return std::make_unique<UnzippedBlocks>(std::move(file), path);
}

}  // namespace zg::tempoline
