#pragma once

// The four versions of the FRQ file and how they differ. The header of version 2.1 is like that of 2.0, its
// blocks are like those of later versions, so each feature is a column of its own.

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

/// The version whose literal the line is, blanks around it ignored; null if it is none.
const FreqVersion* freqVersionOf(std::string_view firstLine);

/// Whether the text, without leading blanks, begins like one of the literals or is all blanks, so that more
/// of it must be read to decide. Anything else is refused without reading its first line, however long that
/// is.
bool mayBeFreqFile(std::string_view firstBytes);

}  // namespace zg
