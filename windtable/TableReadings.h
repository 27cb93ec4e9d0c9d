#pragma once

// The possible interpretations of the times of a table, and which of them fit the whole file.

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

/// The times of a file in one interpretation.
struct TimeReading {
    TimeForm form = TimeForm::YearFirst;
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::optional<std::int64_t> zone;  ///< of the first time, if it states one
    bool named = false;                ///< some times state a zone
    bool overlaps = false;             ///< a record of another station is not later than the one before it
    std::int64_t distances = 0;
    std::map<std::int64_t, std::int64_t> counts;  ///< of intervals; only the first few different ones

    /// The most frequent interval, the smaller of equal ones; 0 if there is none.
    std::int64_t commonest() const;

    /// Number of intervals that differ from the most frequent one.
    std::int64_t gaps() const;
};

class TimeReadings {
 public:
    explicit TimeReadings(const std::vector<TimeForm>& forms, std::string pattern = {});

    /// Adds the time of a record; false if no form that could read all earlier ones can read it.
    bool add(std::span<const std::string_view> values, bool isOtherStation = false);

    /// Whether a form that could read all earlier ones can read that time too.
    bool canRead(std::span<const std::string_view> values) const;

    /// Whether times of several stations overlap in every interpretation.
    bool overlap() const;

    std::size_t count() const { return readings_.size(); }
    const std::vector<TimeReading>& readings() const { return readings_; }

    /// The one with the fewest gaps, but no numbers if all times are dates with the year first; null if day
    /// first and month first have equally many and differ.
    const TimeReading* best() const;

 private:
    bool take(TimeReading& reading, std::span<const std::string_view> values, bool isOtherStation) const;

    std::vector<TimeReading> readings_;
    std::string pattern_;
    bool begun_ = false;
};

/// "day first", "month first", ...
const char* nameOf(TimeForm form);

}  // namespace zg
