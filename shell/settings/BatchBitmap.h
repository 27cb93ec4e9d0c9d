#pragma once

#include <string>
#include <string_view>

namespace zg {

/// The text as a file's name: separators, and characters that file systems cannot hold, become "_".
std::string asFileName(std::string_view text);

/// Where a batch run saves the rose on show: its directory, then the root and the rose's title as a file's
/// name, then ".bmp".
std::string batchBitmapPath();

}  // namespace zg
