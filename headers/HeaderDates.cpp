#include "headers/HeaderDates.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "headers/DateHelpers.h"

namespace zg {

std::string timeTextOf(const std::string& hour, std::int16_t seconds) {
    std::int16_t forMinutes = seconds;  // the routine changes its argument
    return hour + ":" + std::to_string(MinutesOf(forMinutes)) + ":" + std::to_string(SecondsOf(seconds));
}

void skipComments(LineReader& lines) {
    const std::int16_t comments = toInt16(trim(lines.readLine()));
    for (int i = 0; i < comments; ++i) lines.readLine();
    lines.readLine();
}

DateTime dayOf(Host& host, JulianStamp& stamp) {
    const MonthAndDay day = VBGRDAY(host, stamp.year, stamp.julianDay);
    const DateTime date =
        DateFromParts(std::to_string(stamp.year), std::to_string(day.month()), std::to_string(day.day()));
    if (stamp.hour != 24) return date;
    stamp.hour = 0;
    return addDays(date, 1);
}

DateTime momentOf(Host& host, JulianStamp stamp) {
    const DateTime date = dayOf(host, stamp);
    return AddTimeToDate(date, timeTextOf(std::to_string(stamp.hour), stamp.seconds));
}

}  // namespace zg
