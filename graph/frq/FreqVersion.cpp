#include "graph/frq/FreqVersion.h"

#include <algorithm>

#include "base/Text.h"

namespace zg {

const std::array<FreqVersion, 4> freqVersions = {{
    {"2.0", "WIND.FRQ        2.0             Zephyrgraph FRQ File Format", FreqPreamble::OneCount,
     FreqPeriodForm::WholeHours, FreqStatistics::Absent, 21},
    {"2.1", "WIND.FRQ        2.1             Zephyrgraph FRQ File Format", FreqPreamble::OneCount,
     FreqPeriodForm::WholeHours, FreqStatistics::Present, 22},
    {"2.2", "WIND.FRQ        2.2             Zephyrgraph FRQ File Format", FreqPreamble::TwoCounts,
     FreqPeriodForm::Seconds, FreqStatistics::Present, 22},
    {"2.3", "WIND.FRQ        2.3             Zephyrgraph FRQ File Format", FreqPreamble::TwoCounts,
     FreqPeriodForm::SecondsAndZone, FreqStatistics::Present, 22},
}};

const FreqVersion* freqVersionOf(std::string_view firstLine) {
    const std::string_view literal = trimmed(firstLine);
    for (const FreqVersion& version : freqVersions)
        if (literal == version.firstLine) return &version;
    return nullptr;
}

bool mayBeFreqFile(std::string_view firstBytes) {
    firstBytes.remove_prefix(std::min(firstBytes.find_first_not_of(' '), firstBytes.size()));
    return std::any_of(freqVersions.begin(), freqVersions.end(), [firstBytes](const FreqVersion& version) {
        const std::size_t shared = std::min(firstBytes.size(), version.firstLine.size());
        return firstBytes.substr(0, shared) == version.firstLine.substr(0, shared);
    });
}

}  // namespace zg
