#include "formats/Times.h"

#include <array>

namespace zg {

bool isLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

bool isLeapYearOfDialogs(int year) { return year % 4 == 0; }

int daysOfMonth(int year, int month) {
    static constexpr std::array<int, 12> lengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : lengths[static_cast<std::size_t>(month - 1)];
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
    if (hour < 0 || hour > lastHour) return "hour " + std::to_string(hour) + " is not between 0 and 24";
    if (second < 0 || second > secondsOfHour)
        return "second " + std::to_string(second) + " is not between 0 and 3600 within its hour";
    return {};
}

}  // namespace zg
