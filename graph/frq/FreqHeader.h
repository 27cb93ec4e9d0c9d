#pragma once

// The lines before the first rose.

#include <cstdint>

#include "base/Lines.h"
#include "graph/frq/FreqVersion.h"
#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// What the counts of a header say.
struct FreqHeaderSize {
    std::int16_t leadCount = 0;  ///< lines after the count line, or comment lines where there are two counts
    std::int16_t lines = 0;      ///< of the whole header; only the rose count depends on it
};

/// Reads the counts; the reader stands after the first line. Raises 6 where a sum leaves 16 bits.
FreqHeaderSize readFreqHeaderSize(LineReader& reader, const FreqVersion& version);

/// Reads titles, measurement, class limits and period into the tables. The reader stands after the first line
/// at the call and after the period line at the end.
void readFreqHeaderFields(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size,
                          ModPolarGraph& tables);

/// Passes over what may stand between the period line and the first rose.
void skipFreqHeaderRest(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size);

/// Passes over so many lines, none for a count below 1; raises 62 past the end.
void skipFreqLines(LineReader& reader, std::int16_t count);

}  // namespace zg
