#pragma once

// The files of a run: those of raw data become FRQ files first, several at a time, and all are drawn then.

#include <iosfwd>

#include "export/ExportRoses.h"
#include "export/RawWishes.h"

namespace zg {

/// As runExport, for files of raw data too. A directory stands for all its files of winds. What fails is told
/// on errors, in the order of the files, and the others go on.
int runAllExport(ExportJob job, const RawWishes& wishes, std::ostream& out, std::ostream& errors);

/// Ends the processors that run, and the run with them; may be called from a signal handler.
void stopRawRuns();

}  // namespace zg
