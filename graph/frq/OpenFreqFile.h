#pragma once

// Loads an FRQ file into the tables. The file is read by position, in three passes: the sizes of its header,
// its number of lines (which gives the number of roses), and its content. There is no recovery: after an
// accepted first line, an error leaves the tables filled up to where it happened.

#include <functional>
#include <string>

#include "base/Host.h"
#include "base/Lines.h"
#include "graph/frq/ModPolarGraph.h"

namespace zg {

enum class FreqFileOutcome { Loaded, Refused };

/// Loads a file; the caller redraws. CurrentRose becomes 1 in any case. Refused means that the first line is
/// not a known one: the user has been told in a box, the other tables are unchanged, and the file stays open
/// until 16 others have been refused; no other file handle outlives the load. Raises the errors of the file
/// and of conversions, with the tables partly filled.
FreqFileOutcome loadFreqFile(const std::string& path, ModPolarGraph& tables, Host& host);

/// Returns a reader that is before the first line; called once for each pass.
using FreqSource = std::function<LineReader()>;

/// Like loadFreqFile, for content from any source; the path is only shown.
FreqFileOutcome loadFreqLines(const FreqSource& open, const std::string& path, ModPolarGraph& tables,
                              Host& host);

}  // namespace zg
