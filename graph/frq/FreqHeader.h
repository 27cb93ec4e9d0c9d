#pragma once

// The lines before the first rose.

#include <cstdint>

#include "base/Lines.h"
#include "graph/frq/FreqVersion.h"
#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// The counts in a header.
struct FreqHeaderSize {
    std::int16_t leadCount = 0;  ///< lines after the count line, or comment lines if there are two counts
    std::int16_t lines = 0;      ///< lines of the whole header; only the number of roses depends on it
};

/// Reads the counts; the reader is then after the first line. Raises 6 if a sum exceeds 16 bits.
FreqHeaderSize readFreqHeaderSize(LineReader& reader, const FreqVersion& version);

/// Reads titles, measurement, class limits and period into the tables. The reader is after the first line
/// before, and after the period line afterwards.
void readFreqHeaderFields(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size,
                          ModPolarGraph& tables);

/// Skips the lines between the period line and the first rose.
void skipFreqHeaderRest(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size);

}  // namespace zg
