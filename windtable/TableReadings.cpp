#include "windtable/TableReadings.h"

#include <algorithm>

namespace zg {

namespace {

constexpr std::size_t mostDistances = 64;

/// Dates whose day equals their month.
bool areSameTimes(const TimeReading& one, const TimeReading& other) {
    return one.first == other.first && one.last == other.last && one.counts == other.counts;
}

}  // namespace

std::int64_t TimeReading::commonest() const {
    std::int64_t best = 0;
    std::int64_t times = 0;
    for (const auto& [distance, count] : counts) {
        if (distance <= 0 || count <= times) continue;
        best = distance;
        times = count;
    }
    return best;
}

std::int64_t TimeReading::gaps() const {
    const auto found = counts.find(commonest());
    return distances - (found == counts.end() ? 0 : found->second);
}

TimeReadings::TimeReadings(const std::vector<TimeForm>& forms, std::string pattern)
    : pattern_(std::move(pattern)) {
    for (const TimeForm form : forms) readings_.emplace_back().form = form;
}

bool TimeReadings::take(TimeReading& reading, std::span<const std::string_view> values,
                        bool isOtherStation) const {
    const std::optional<TableTime> time = tableTime(reading.form, pattern_, values);
    if (!time) return false;
    if (!begun_) {
        reading.zone = time->zone;
        reading.first = time->seconds;
    }
    reading.named = reading.named || time->zone.has_value();
    // Setting a clock forward or back causes no gap if the times state their zone.
    const std::int64_t moment =
        time->seconds - (time->zone && reading.zone ? *time->zone - *reading.zone : 0);
    if (begun_ && isOtherStation && moment <= reading.last) reading.overlaps = true;
    if (begun_ && moment != reading.last) {
        ++reading.distances;
        const std::int64_t distance = moment - reading.last;
        if (const auto found = reading.counts.find(distance); found != reading.counts.end())
            ++found->second;
        else if (reading.counts.size() < mostDistances)
            reading.counts.emplace(distance, 1);
    }
    reading.last = moment;
    return true;
}

bool TimeReadings::add(std::span<const std::string_view> values, bool isOtherStation) {
    std::vector<bool> read;
    for (TimeReading& reading : readings_) read.push_back(take(reading, values, isOtherStation));
    if (std::find(read.begin(), read.end(), true) == read.end()) return false;
    std::size_t at = 0;
    std::erase_if(readings_, [&](const TimeReading&) { return !read[at++]; });
    begun_ = true;
    return true;
}

bool TimeReadings::canRead(std::span<const std::string_view> values) const {
    return std::any_of(readings_.begin(), readings_.end(), [&](const TimeReading& reading) {
        return tableTime(reading.form, pattern_, values).has_value();
    });
}

bool TimeReadings::overlap() const {
    return std::all_of(readings_.begin(), readings_.end(),
                       [](const TimeReading& reading) { return reading.overlaps; });
}

const TimeReading* TimeReadings::best() const {
    const TimeReading* best = nullptr;
    bool isTie = false;
    const bool areDates = std::any_of(readings_.begin(), readings_.end(), [](const TimeReading& reading) {
        return reading.form == TimeForm::YearFirst;
    });
    for (const TimeReading& reading : readings_) {
        // 201601091530 is a number of milliseconds too, and as such any gap within a day is less than a
        // second.
        if (areDates && reading.form == TimeForm::Epoch) continue;
        if (best != nullptr && reading.gaps() == best->gaps())
            isTie = isTie || (best->form == TimeForm::DayFirst && reading.form == TimeForm::MonthFirst &&
                              !areSameTimes(*best, reading));
        if (best != nullptr && reading.gaps() >= best->gaps()) continue;
        best = &reading;
        isTie = false;
    }
    return isTie ? nullptr : best;
}

const char* nameOf(TimeForm form) {
    switch (form) {
        case TimeForm::YearFirst:
            return "year first";
        case TimeForm::DayFirst:
            return "day first";
        case TimeForm::MonthFirst:
            return "month first";
        case TimeForm::Parts:
            return "year, month, day and hour in columns";
        case TimeForm::Epoch:
            return "seconds since 1970";
        case TimeForm::Pattern:
            break;
    }
    return "by the pattern";
}

}  // namespace zg
