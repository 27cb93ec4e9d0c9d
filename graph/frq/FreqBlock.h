#pragma once

// The block of one rose.

#include <cstdint>

#include "base/Lines.h"
#include "graph/frq/FreqVersion.h"
#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// Reads the block of rose k into the tables; after an error they keep what was read before it. Direction
/// labels are taken from rose 1 only.
void readFreqBlock(LineReader& reader, const FreqVersion& version, std::int16_t rose, ModPolarGraph& tables);

/// Reads blanks, digits with at most one point, and "%" at the start of the text, and removes them from it.
/// Up to 15 digits and the power of ten are exact, so their quotient equals toDouble. False for any other
/// text, which only the general routine can read.
bool takePlainPercent(const char*& at, const char* end, double& value);

}  // namespace zg
