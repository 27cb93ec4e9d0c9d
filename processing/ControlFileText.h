#pragma once

#include <string_view>

namespace zg {

/// The lines of a control file, parted by line feeds.
extern const std::string_view controlFileText;

}  // namespace zg
