#include "tempoline/Times.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "base/Text.h"

namespace zg::tempoline {

namespace {

constexpr std::int64_t daysAnEra = 146097;  // 400 years
constexpr std::int64_t epochDay = 719468;   // from March 1 of year 0 to January 1, 1970
constexpr Seconds largestOffset = 14 * secondsAnHour;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

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

bool isLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int daysOfMonth(int year, int month) {
    static constexpr std::array<int, 12> lengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : lengths[static_cast<std::size_t>(month - 1)];
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

std::string faultOfDate(int year, int month, int day) {
    if (year < 1 || year > 9999) return "year " + std::to_string(year) + " is not between 1 and 9999";
    if (month < 1 || month > 12) return "month " + std::to_string(month) + " is not between 1 and 12";
    if (day < 1 || day > daysOfMonth(year, month))
        return "day " + std::to_string(day) + " is not in month " + std::to_string(month) + " of " +
               std::to_string(year);
    return {};
}

std::string faultOfHour(int hour, int second) {
    if (hour < 0 || hour > 24) return "hour " + std::to_string(hour) + " is not between 0 and 24";
    if (second < 0 || second > secondsAnHour)
        return "second " + std::to_string(second) + " is not between 0 and 3600 within its hour";
    return {};
}

Seconds momentOf(int year, int month, int day, int hour, int second) {
    return daysFromDate(year, month, day) * secondsADay + hour * secondsAnHour + second;
}

Seconds momentOfJulianDay(int year, int julianDay, int hour, int second) {
    return momentOf(year, 1, 1, hour, second) + (julianDay - 1) * secondsADay;
}

int fullYear(int year) {
    if (year < 0 || year > 99) return year;
    return year >= 50 ? 1900 + year : 2000 + year;
}

std::optional<Seconds> zoneOffset(std::string_view key) {
    const std::string text = ucase(trimmed(key));
    if (text.size() != 8 || text.compare(0, 3, "UTC") != 0 || (text[3] != '+' && text[3] != '-')) return {};
    for (std::size_t i = 4; i < 8; ++i) {
        if (!isDigit(text[i])) return {};
    }
    const int hours = (text[4] - '0') * 10 + (text[5] - '0');
    const int minutes = (text[6] - '0') * 10 + (text[7] - '0');
    const Seconds offset = hours * secondsAnHour + Seconds{minutes} * 60;
    if (minutes > 59 || offset > largestOffset) return {};
    return text[3] == '-' ? -offset : offset;
}

std::string zoneText(Seconds offset) {
    const Seconds minutes = std::abs(offset) / 60;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "UTC%c%02d%02d", offset < 0 ? '-' : '+',
                  static_cast<int>(minutes / 60), static_cast<int>(minutes % 60));
    return text.data();
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
