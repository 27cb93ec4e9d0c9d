#include "headers/UpHeader.h"

#include "base/Text.h"
#include "formats/Kinds.h"
#include "headers/DateHelpers.h"
#include "headers/HeaderDates.h"

namespace zg {

namespace {

TimeOfDay fieldsOf(JulianStamp stamp) {
    const auto parts = MinSecOf(stamp.seconds);
    return {0, parts[0], parts[1]};
}

/// 3600 seconds and more would be minute 60 or later, which no time has.
DateTime momentOf(HeaderSource& source, JulianStamp stamp, const TimeOfDay& fields, const char* field) {
    const DateTime date = dayOf(source, stamp, field);
    return AddTimeToDate(date, std::to_string(stamp.hour) + ":" + std::to_string(fields.minute) + ":" +
                                   std::to_string(fields.second));
}

UpHeader readLines(HeaderSource& source) {
    UpHeader header;
    const Format& format = formatOf(InputKind::Up);
    HeaderFields kind(source, source.readLine("file type"));
    if (kind.atEnd() || ucase(kind.text("name")) != format.firstWord) return header;
    header.isUp = true;
    const std::string version = kind.text("version");
    if (!format.hasVersion(version)) return header;
    const bool withSeconds = version == "2.1";
    skipComments(source);
    header.timeZone = withSeconds ? trim(source.readLine("time zone")) : "UTC+0000";
    HeaderFields period(source, source.readLine("period"));
    const HeaderSource::Line periodLine = source.line();
    const JulianStamp begin = readStamp(period, withSeconds);
    const JulianStamp end = readStamp(period, withSeconds);
    source.readLine("line after the period");
    HeaderFields station(source, source.readLine("station"));
    station.skip(1);
    header.station = station.text("identifier");
    source.atLine(periodLine);
    header.beginFields = fieldsOf(begin);
    header.endFields = fieldsOf(end);
    header.begin = momentOf(source, begin, header.beginFields, "begin");
    header.end = momentOf(source, end, header.endFields, "end");
    if (!withSeconds) header.begin = addSeconds(header.begin, -3600);
    header.version = version;
    return header;
}

}  // namespace

UpHeader readUpHeader(HeaderSource& source) {
    return source.placing([&] { return readLines(source); });
}

}  // namespace zg
