#pragma once

#include <string_view>

namespace zg {

/// The lines of a control file, separated by line feeds.
extern const std::string_view controlFileText;

}  // namespace zg
