#pragma once

#include <optional>
#include <string>

#include "formats/Kinds.h"

namespace zg {

/// The kind of raw data that is in the file, by what stands there and not by its name; none for an FRQ file
/// and for what is no kind that is known. A file that cannot be read is none too.
std::optional<InputKind> rawKindOf(const std::string& path);

}  // namespace zg
