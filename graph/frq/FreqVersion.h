#pragma once

// The four versions of the FRQ file and what tells them apart. Version 2.1 sides with 2.0 in its header and
// with the later ones in its blocks, so each trait is a column of its own.

#include <array>
#include <cstdint>
#include <string_view>

namespace zg {

enum class FreqPreamble { OneCount, TwoCounts };
enum class FreqPeriodForm { WholeHours, Seconds, SecondsAndZone };
enum class FreqStatistics { Absent, Present };

struct FreqVersion {
    std::string_view name;  ///< as FrqVersion shows it
    std::string_view firstLine;
    FreqPreamble preamble;
    FreqPeriodForm period;
    FreqStatistics statistics;
    std::int16_t linesARose;
};

extern const std::array<FreqVersion, 4> freqVersions;

/// The version whose literal the line is, blanks around it aside; null where it is none.
const FreqVersion* freqVersionOf(std::string_view firstLine);

/// The text, blanks before it aside, begins with the beginning of one of the literals, or is all blanks: more
/// of it decides. What fails here is refused without reading its first line, however long that is.
bool mayBeFreqFile(std::string_view firstBytes);

}  // namespace zg
