#pragma once

#include <string>
#include <string_view>

namespace zg {

/// The text as a file name: separators, and characters that file systems do not allow, become "_".
std::string asFileName(std::string_view text);

/// Where a batch run saves a rose: its directory, then the root and the rose's title as a file name, then
/// ".bmp".
std::string batchBitmapPath(const std::string& directory, const std::string& root, const std::string& title);

/// The same for the displayed rose and the run that the settings mirror.
std::string batchBitmapPath();

}  // namespace zg
