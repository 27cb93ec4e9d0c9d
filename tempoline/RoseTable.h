#pragma once

// How often the wind blew: counts of steps by sector and class, one table per rose.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Wind.h"

namespace zg::tempoline {

struct RoseCounts {
    std::string title;
    std::string key;         ///< "all", "season 2", "hours 01-06"
    std::int64_t total = 0;  ///< steps of the period
    std::int64_t valid = 0;  ///< calms included
    std::int64_t calm = 0;
    std::array<std::array<std::int64_t, classCount>, sectorCount> cells{};  ///< by sector and class
};

/// "N" to "NNW", north first, clockwise.
extern const std::array<const char*, sectorCount> sectorLabels;

/// "Hours 01-06"
std::string hourRangeText(const HourRange& range);

/// All roses of one output: the whole period, each season, each range of hours.
class RoseTable {
 public:
    RoseTable(const RoseRules& rules, Seconds step);

    /// Counts the step that begins at that moment; an invalid wind counts as missing.
    void add(Seconds begin, const Wind& wind);

    const std::vector<RoseCounts>& roses() const { return roses_; }

 private:
    void findMonth(Seconds begin);

    std::array<double, classCount> limits_;
    Seconds step_;
    std::vector<RoseCounts> roses_;
    std::array<std::vector<std::size_t>, 12> rosesOfMonth_;
    std::array<std::vector<std::size_t>, 24> rosesOfHour_;
    std::int64_t day_ = INT64_MIN;
    std::size_t month_ = 0;
};

/// The class of a speed above calm: the last one whose lower limit it reaches.
std::size_t classOf(double speed, const std::array<double, classCount>& limits);

}  // namespace zg::tempoline
