#include "tempoline/Times.h"

#include <array>
#include <cstdio>

namespace zg::tempoline {

namespace {

constexpr std::int64_t daysAnEra = 146097;  // 400 years
constexpr std::int64_t epochDay = 719468;   // from March 1 of year 0 to January 1, 1970

}  // namespace

// Counting years from March puts the leap day at the end of the year; see any text on the civil calendar.
std::int64_t daysFromDate(int year, int month, int day) {
    const std::int64_t y = month <= 2 ? year - 1 : year;
    const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
    const std::int64_t yearOfEra = y - era * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * daysAnEra + dayOfEra - epochDay;
}

Calendar calendarOf(Seconds moment) {
    std::int64_t days = moment / secondsADay;
    Seconds rest = moment % secondsADay;
    if (rest < 0) {
        rest += secondsADay;
        --days;
    }
    days += epochDay;
    const std::int64_t era = (days >= 0 ? days : days - (daysAnEra - 1)) / daysAnEra;
    const std::int64_t dayOfEra = days - era * daysAnEra;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / (daysAnEra - 1)) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
    Calendar calendar;
    calendar.day = static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1);
    calendar.month = static_cast<int>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
    calendar.year = static_cast<int>(yearOfEra + era * 400 + (calendar.month <= 2 ? 1 : 0));
    calendar.hour = static_cast<int>(rest / secondsAnHour);
    calendar.second = static_cast<int>(rest % secondsAnHour);
    return calendar;
}

Seconds momentOf(int year, int month, int day, int hour, int second) {
    return daysFromDate(year, month, day) * secondsADay + hour * secondsAnHour + second;
}

Seconds momentOfJulianDay(int year, int julianDay, int hour, int second) {
    return momentOf(year, 1, 1, hour, second) + (julianDay - 1) * secondsADay;
}

std::string periodText(Seconds moment) {
    const Calendar c = calendarOf(moment);
    return std::to_string(c.year) + ' ' + std::to_string(c.month) + ' ' + std::to_string(c.day) + ' ' +
           std::to_string(c.hour) + ' ' + std::to_string(c.second);
}

std::string isoText(Seconds moment) {
    const Calendar c = calendarOf(moment);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", c.year, c.month, c.day, c.hour,
                  c.second / 60, c.second % 60);
    return text.data();
}

}  // namespace zg::tempoline
