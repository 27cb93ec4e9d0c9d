#pragma once

// The keys of the control file that say how a table of winds is laid out.

#include "tempoline/ControlKeys.h"
#include "windtable/TableLayout.h"

namespace zg::tempoline {

/// CSVTIME, CSVSPD and CSVDIR must be there; the others have defaults.
TableLayout readTableLayout(ControlKeys& keys);

}  // namespace zg::tempoline
