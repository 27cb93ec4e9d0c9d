#include "headers/UpHeader.h"

#include "base/Lines.h"
#include "base/Numbers.h"
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
DateTime momentOf(Host& host, JulianStamp stamp, const TimeOfDay& fields) {
    const DateTime date = dayOf(host, stamp);
    return AddTimeToDate(date, std::to_string(stamp.hour) + ":" + std::to_string(fields.minute) + ":" +
                                   std::to_string(fields.second));
}

UpHeader readLines(Host& host, LineReader& lines) {
    UpHeader header;
    const std::string first = squeezeBlanks(lines.readLine());
    const Pieces kind = split(first, " ");
    if (kind.size() == 0 || ucase(kind[0]) != formatOf(InputKind::Up).firstWord) return header;
    header.isUp = true;
    if (!formatOf(InputKind::Up).hasVersion(kind[1])) return header;
    const bool withSeconds = kind[1] == "2.1";
    skipComments(lines);
    header.timeZone = withSeconds ? trim(lines.readLine()) : "UTC+0000";
    const std::string period = squeezeBlanks(lines.readLine());
    const Pieces f = split(period, " ");
    JulianStamp begin{toInt16(f[0]), toInt16(f[1]), toInt16(f[2]), 0};
    JulianStamp end;
    if (withSeconds) {
        begin.seconds = toInt16(f[3]);
        end = {toInt16(f[4]), toInt16(f[5]), toInt16(f[6]), toInt16(f[7])};
    } else {
        end = {toInt16(f[3]), toInt16(f[4]), toInt16(f[5]), 0};
    }
    lines.readLine();
    const std::string station = squeezeBlanks(lines.readLine());
    header.station = std::string(split(station, " ")[1]);
    header.beginFields = fieldsOf(begin);
    header.endFields = fieldsOf(end);
    header.begin = momentOf(host, begin, header.beginFields);
    header.end = momentOf(host, end, header.endFields);
    if (!withSeconds) header.begin = addSeconds(header.begin, -3600);
    header.version = std::string(kind[1]);
    return header;
}

}  // namespace

UpHeader readUpHeader(Host& host, const std::string& path) {
    LineReader lines(path);
    return withLineNumbers(lines, [&] { return readLines(host, lines); });
}

}  // namespace zg
