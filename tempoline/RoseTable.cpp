#include "tempoline/RoseTable.h"

#include <cstdio>

namespace zg::tempoline {

const std::array<const char*, sectorCount> sectorLabels = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                                           "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};

namespace {

void countStep(RoseCounts& rose, bool valid, bool calm, std::size_t sector, std::size_t speedClass) {
    ++rose.total;
    if (!valid) return;
    ++rose.valid;
    if (calm)
        ++rose.calm;
    else
        ++rose.cells[sector][speedClass];
}

std::string rangeText(const HourRange& range) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d-%02d", range.first % 24, range.last % 24);
    return text;
}

}  // namespace

std::string hourRangeText(const HourRange& range) { return "Hours " + rangeText(range); }

std::size_t classOf(double speed, const std::array<double, classCount>& limits) {
    std::size_t speedClass = 0;
    while (speedClass + 1 < classCount && speed >= limits[speedClass + 1]) ++speedClass;
    return speedClass;
}

RoseTable::RoseTable(const RoseRules& rules, Seconds step) : limits_(rules.classLimits), step_(step) {
    const auto addRose = [this](std::string title, std::string key) {
        RoseCounts rose;
        rose.title = std::move(title);
        rose.key = std::move(key);
        roses_.push_back(std::move(rose));
        return roses_.size() - 1;
    };
    addRose("All Periods", "all");
    for (const Season& season : rules.seasons) {
        const std::size_t rose = addRose(season.name, "season " + std::to_string(season.id));
        for (std::size_t month = 0; month < 12; ++month) {
            if (rules.seasonOfMonth[month] == season.id) rosesOfMonth_[month].push_back(rose);
        }
    }
    for (const HourRange& range : rules.hourRanges) {
        const std::size_t rose = addRose(hourRangeText(range), "hours " + rangeText(range));
        for (int hour = range.first;; hour = (hour + 1) % 24) {
            rosesOfHour_[static_cast<std::size_t>(hour)].push_back(rose);
            if (hour == range.last) break;
        }
    }
}

void RoseTable::findMonth(Seconds begin) {
    const std::int64_t day = (begin >= 0 ? begin : begin - (secondsADay - 1)) / secondsADay;
    if (day == day_) return;
    day_ = day;
    month_ = static_cast<std::size_t>(calendarOf(begin).month - 1);
}

void RoseTable::add(Seconds begin, const Wind& wind) {
    findMonth(begin);
    // An hour has the number of its end, and a shorter step that of the hour in which it ends.
    const Seconds toFullHour = step_ < secondsAnHour ? secondsAnHour - 1 : 0;
    Seconds secondOfDay = (begin + step_ + toFullHour) % secondsADay;
    if (secondOfDay < 0) secondOfDay += secondsADay;
    const bool valid = isValid(wind, limits_[0]);
    const bool calm = valid && wind.speed < limits_[0];
    const bool blows = valid && !calm;
    const std::size_t sector = blows ? static_cast<std::size_t>(sectorOf(wind.direction)) : 0;
    const std::size_t speedClass = blows ? classOf(wind.speed, limits_) : 0;
    countStep(roses_[0], valid, calm, sector, speedClass);
    for (const std::size_t rose : rosesOfMonth_[month_])
        countStep(roses_[rose], valid, calm, sector, speedClass);
    for (const std::size_t rose : rosesOfHour_[static_cast<std::size_t>(secondOfDay / secondsAnHour)])
        countStep(roses_[rose], valid, calm, sector, speedClass);
}

}  // namespace zg::tempoline
