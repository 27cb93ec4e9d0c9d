#pragma once

#include <memory>
#include <string>

#include "tempoline/BlockReader.h"

namespace zg::tempoline {

/// The blocks of a file, decompressed if its first bytes are those of a gzip file. Throws a Failure with the
/// path for damaged data.
std::unique_ptr<BlockReader> unzippedBlocks(std::unique_ptr<BlockReader> file, const std::string& path);

}  // namespace zg::tempoline
