#include "headers/DateHelpers.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "formats/Times.h"

namespace zg {

namespace {

using CumulativeDays = std::array<std::int16_t, 12>;

/// Days of the year up to the end of each month.
CumulativeDays cumulativeDays(std::int16_t year) {
    CumulativeDays days = {31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};
    if (isLeapYearOfDialogs(year))
        for (std::size_t month = 1; month < days.size(); ++month) ++days[month];
    return days;
}

std::int16_t narrow(std::int32_t value) { return toInt16(static_cast<double>(value)); }

}  // namespace

std::int16_t MonthAndDay::value(std::size_t i) const {
    if (!values_) raise(ErrorNumber::TypeMismatch);
    return (*values_)[i];
}

MonthAndDay VBGRDAY(std::int16_t year, std::int16_t julianDay) {
    const CumulativeDays days = cumulativeDays(year);
    if (julianDay < 1 || julianDay > days.back()) return {};
    std::size_t month = 0;
    while (days[month] < julianDay) ++month;
    const int before = month == 0 ? 0 : days[month - 1];
    return {narrow(static_cast<std::int32_t>(month) + 1), narrow(julianDay - before)};
}

std::array<std::int16_t, 2> MinSecOf(std::int16_t& seconds) {
    const std::int16_t minutes = narrow(idiv(seconds, 60));
    seconds = narrow(imod(seconds, 60));
    return {minutes, seconds};
}

std::int16_t HoursOf(std::int16_t seconds) { return narrow((seconds - imod(seconds, 3600)) / 3600); }

std::int16_t MinutesOf(std::int16_t& seconds) {
    seconds = narrow(seconds - 3600 * HoursOf(seconds));
    return narrow((seconds - imod(seconds, 60)) / 60);
}

std::int16_t SecondsOf(std::int16_t seconds) {
    std::int16_t rest = seconds;
    const std::int16_t minutes = MinutesOf(rest);
    return narrow(seconds - 3600 * HoursOf(seconds) - 60 * minutes);
}

DateTime AddTimeToDate(DateTime date, std::string_view timeText) {
    const TimeOfDay before = timeOf(date);
    const TimeOfDay time = parseTime(timeText);
    return addSeconds(
        date, timeSerial(time.hour - before.hour, time.minute - before.minute, time.second - before.second));
}

}  // namespace zg
