#pragma once

#include <string>
#include <string_view>

namespace zg {

/// The text as a file name: separators, and characters that file systems do not allow, become "_".
std::string asFileName(std::string_view text);

/// Where a batch run saves the displayed rose: its directory, then the root and the rose's title as a file
/// name, then ".bmp".
std::string batchBitmapPath();

}  // namespace zg
