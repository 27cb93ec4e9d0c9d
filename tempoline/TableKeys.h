#pragma once

// The keys of the control file for the layout of a table of winds.

#include "tempoline/ControlKeys.h"
#include "windtable/TableLayout.h"

namespace zg::tempoline {

/// CSVTIME, CSVSPD and CSVDIR are required; the others have defaults.
TableLayout readTableLayout(ControlKeys& keys);

}  // namespace zg::tempoline
