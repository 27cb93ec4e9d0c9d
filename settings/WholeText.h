#pragma once

#include <string>

namespace zg {

/// Replaces a small file in one step, so that another window of the program reads the old text or the new
/// one, never a part. Where no file can be created beside it, it is written in place. Returns false if that
/// fails; unless it was written in place, the old file is then unchanged.
bool replaceFile(const std::string& path, const std::string& text);

}  // namespace zg
