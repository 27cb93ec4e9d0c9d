#pragma once

// The block of one rose.

#include <cstdint>

#include "base/Lines.h"
#include "graph/frq/FreqVersion.h"
#include "graph/frq/ModPolarGraph.h"

namespace zg {

constexpr std::int16_t freqDirections = 16;

/// The row of FrqFraction where rose k (from 1) begins. Roses lie 17 rows apart, the last of them unused.
constexpr std::int64_t firstFractionRow(std::int64_t rose) { return rose * 16 + (rose - 16); }

/// Reads the block of rose k into its places of the tables, which hold what was read when an error ends it.
/// Direction labels are taken from rose 1 only.
void readFreqBlock(LineReader& reader, const FreqVersion& version, std::int16_t rose, ModPolarGraph& tables);

/// Reads blanks, digits with a point among them, and "%" off the text, and moves to what follows. Up to 15
/// digits and the power of ten are exact, so their quotient is the number that toDouble gives. False for
/// anything else, which only the general way can read.
bool takePlainPercent(const char*& at, const char* end, double& value);

}  // namespace zg
