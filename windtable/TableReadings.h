#pragma once

// The ways in which the times of a table can be read, and which of them the whole file bears out.

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "windtable/TableLayout.h"
#include "windtable/TableTimes.h"

namespace zg {

/// The times of a file as one form reads them.
struct TimeReading {
    TimeForm form = TimeForm::YearFirst;
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::optional<std::int64_t> zone;  ///< of the first time, where it names one
    bool named = false;                ///< some time names a zone
    std::int64_t distances = 0;
    std::map<std::int64_t, std::int64_t> counts;  ///< of distances; only of the first few different ones

    /// The one between most times, of equals the smaller; 0 where there is none.
    std::int64_t commonest() const;

    /// Distances that are not the commonest one.
    std::int64_t gaps() const;
};

class TimeReadings {
 public:
    explicit TimeReadings(const std::vector<TimeForm>& forms, std::string pattern = {});

    /// Takes the time of a record; false where no form that could read all before it can read it.
    bool add(std::span<const std::string_view> values);

    std::size_t count() const { return readings_.size(); }
    const std::vector<TimeReading>& readings() const { return readings_; }

    /// The one with fewest gaps; null where day first and month first have as many.
    const TimeReading* best() const;

 private:
    bool take(TimeReading& reading, std::span<const std::string_view> values) const;

    std::vector<TimeReading> readings_;
    std::string pattern_;
    bool begun_ = false;
};

/// "day first", "month first", ...
const char* nameOf(TimeForm form);

}  // namespace zg
