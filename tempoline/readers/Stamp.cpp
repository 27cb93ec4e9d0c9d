#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

/// A fast path for "05" and the like; falls back to the general conversion.
int shortWhole(const LineSource& place, std::string_view field, std::string_view name) {
    if (field.size() == 1 && field[0] >= '0' && field[0] <= '9') return field[0] - '0';
    if (field.size() == 2 && field[0] >= '0' && field[0] <= '9' && field[1] >= '0' && field[1] <= '9')
        return (field[0] - '0') * 10 + (field[1] - '0');
    return wholeField(place, field, name);
}

void needHour(const LineSource& place, int hour, int second) {
    if (hour >= 0 && hour <= 24 && second >= 0 && second <= secondsAnHour) return;
    throw place.failure("hour", faultOfHour(hour, second));
}

}  // namespace

Seconds stampOf(const LineSource& place, std::string_view year, std::string_view month, std::string_view day,
                std::string_view hour, std::string_view second) {
    const int y = fullYear(shortWhole(place, year, "year"));
    const int m = shortWhole(place, month, "month");
    const int d = shortWhole(place, day, "day");
    if (y < 1 || y > 9999 || m < 1 || m > 12 || d < 1 || d > daysOfMonth(y, m))
        throw place.failure("date", faultOfDate(y, m, d));
    const int h = shortWhole(place, hour, "hour");
    const int s = shortWhole(place, second, "second");
    needHour(place, h, s);
    return momentOf(y, m, d, h, s);
}

Seconds julianStampOf(const LineSource& place, std::string_view year, std::string_view day,
                      std::string_view hour, std::string_view second) {
    const int y = fullYear(shortWhole(place, year, "year"));
    if (y < 1 || y > 9999) throw place.failure("year", faultOfDate(y, 1, 1));
    const int d = wholeField(place, day, "Julian day");
    if (d < 1 || d > (isLeapYear(y) ? 366 : 365))
        throw place.failure("Julian day", std::to_string(d) + " is not in the year " + std::to_string(y));
    const int h = shortWhole(place, hour, "hour");
    const int s = shortWhole(place, second, "second");
    needHour(place, h, s);
    return momentOfJulianDay(y, d, h, s);
}

}  // namespace zg::tempoline
