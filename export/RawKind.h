#pragma once

#include <optional>
#include <string>

#include "formats/Kinds.h"

namespace zg {

/// The kind of raw data in the file, judged by its contents and not by its name; nothing for an FRQ file, for
/// an unknown kind, and for a file that cannot be read.
std::optional<InputKind> rawKindOf(const std::string& path);

}  // namespace zg
