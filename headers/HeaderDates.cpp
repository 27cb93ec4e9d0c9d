#include "headers/HeaderDates.h"

#include "base/Numbers.h"
#include "headers/DateHelpers.h"

namespace zg {

std::string timeTextOf(const std::string& hour, std::int16_t seconds) {
    std::int16_t forMinutes = seconds;  // the routine changes its argument
    return hour + ":" + std::to_string(MinutesOf(forMinutes)) + ":" + std::to_string(SecondsOf(seconds));
}

void skipComments(HeaderSource& source) {
    const std::string count = trim(source.readLine("number of comment lines"));
    source.atField("number", count);
    const std::int16_t comments = toInt16(count);
    for (int i = 0; i < comments; ++i) source.readLine("comment");
    source.readLine("line after the comments");
}

JulianStamp readStamp(HeaderFields& fields, bool withSeconds) {
    JulianStamp stamp;
    stamp.year = fields.whole("year");
    stamp.julianDay = fields.whole("day of the year");
    stamp.hour = fields.whole("hour");
    if (withSeconds) stamp.seconds = fields.whole("seconds");
    return stamp;
}

DateTime dayOf(HeaderSource& source, JulianStamp& stamp, const char* field) {
    source.atField(field);
    const MonthAndDay day = VBGRDAY(stamp.year, stamp.julianDay);
    if (day.empty()) source.fail("does not exist", invalidJulianDayText);
    const DateTime date =
        DateFromParts(std::to_string(stamp.year), std::to_string(day.month()), std::to_string(day.day()));
    if (stamp.hour != 24) return date;
    stamp.hour = 0;
    return addDays(date, 1);
}

DateTime momentOf(HeaderSource& source, JulianStamp stamp, const char* field) {
    const DateTime date = dayOf(source, stamp, field);
    return AddTimeToDate(date, timeTextOf(std::to_string(stamp.hour), stamp.seconds));
}

}  // namespace zg
