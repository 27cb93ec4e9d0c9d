#pragma once

// The control file as a run: which keys there are, which must be there, what each may hold.

#include <string>
#include <string_view>

#include "tempoline/Control.h"

namespace zg::tempoline {

/// Reads the text of a control file; the name is for messages. Throws a Failure of status BadControl that
/// names file, line and key.
Control readControl(std::string_view text, const std::string& file);

}  // namespace zg::tempoline
