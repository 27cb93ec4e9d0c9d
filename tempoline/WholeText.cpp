#include "tempoline/WholeText.h"

#include <cstdint>
#include <memory>
#include <vector>

#include "tempoline/BlockReader.h"
#include "tempoline/Failure.h"

namespace zg::tempoline {

std::string wholeText(const std::string& path, std::size_t longest, const std::string& what) {
    const std::unique_ptr<BlockReader> blocks = openBlocks(path);
    std::string text;
    std::string block(BlockReader::blockSize, '\0');
    std::vector<std::uint32_t> lineEnds;
    while (const std::size_t size = blocks->read(block.data(), lineEnds)) {
        if (text.size() + size > longest)
            throw Failure(ExitStatus::Failed, (path + ": this is too long for ").append(what));
        text.append(block, 0, size);
    }
    return text;
}

}  // namespace zg::tempoline
