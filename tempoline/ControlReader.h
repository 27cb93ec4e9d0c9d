#pragma once

// Makes a run of a control file: which keys exist, which are required, and what each may hold.

#include <string>
#include <string_view>

#include "tempoline/Control.h"

namespace zg::tempoline {

/// Reads the text of a control file; the name is for messages. Throws a Failure of status BadControl that
/// gives file, line and key.
Control readControl(std::string_view text, const std::string& file);

}  // namespace zg::tempoline
