#pragma once

// Loads an FRQ file into the tables. The file is read by position, in three passes: the sizes of its header,
// its number of lines (from which the number of roses follows), and its content. There is no recovery: an
// error after the accepted first line leaves the tables filled up to where it happened.

#include <functional>
#include <string>

#include "base/Host.h"
#include "base/Lines.h"
#include "graph/frq/ModPolarGraph.h"

namespace zg {

enum class FreqFileOutcome { Loaded, Refused };

/// Loads a file; the caller redraws. CurrentRose becomes 1 in any case. Refused means that the first line is
/// no known one: the user has been told in a box, the other tables are as before, and the file stays open
/// until 16 others were refused; no other handle outlives its load. Raises what the file or a conversion
/// raises, with the tables partly filled.
FreqFileOutcome loadFreqFile(const std::string& path, ModPolarGraph& tables, Host& host);

/// Gives a reader that stands before the first line; called once for each pass.
using FreqSource = std::function<LineReader()>;

/// As loadFreqFile for content from anywhere; the path is only shown.
FreqFileOutcome loadFreqLines(const FreqSource& open, const std::string& path, ModPolarGraph& tables,
                              Host& host);

}  // namespace zg
