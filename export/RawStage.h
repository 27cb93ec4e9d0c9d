#pragma once

// The files of a run: first those of raw data become FRQ files, several at a time, and then all are drawn.

#include <iosfwd>

#include "export/ExportRoses.h"
#include "export/RawWishes.h"

namespace zg {

/// Like runExport, for files of raw data too. A directory means all its files of winds. Failures are reported
/// on errors, in the order of the files, and the other files continue.
int runAllExport(ExportJob job, const RawWishes& wishes, std::ostream& out, std::ostream& errors);

/// Ends the running processors and with them the run; may be called from a signal handler.
void stopRawRuns();

}  // namespace zg
