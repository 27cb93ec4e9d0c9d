#include "headers/TsfHeader.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "formats/Kinds.h"
#include "headers/DateHelpers.h"
#include "headers/HeaderDates.h"

namespace zg {

namespace {

std::string squeezed(HeaderSource& source, const char* part) { return squeezeBlanks(source.readLine(part)); }

/// "...: STATION ID = 14735" gives the station; any other line, or a blank one, gives none.
std::string stationOf(HeaderSource& source) {
    const std::string line = squeezed(source, "station");
    if (line.empty()) return {};
    source.atField("STATION ID");
    const std::string assignment(split(line, ":")[1]);
    const Pieces sides = split(assignment, "=");
    return ucase(trim(sides[0])) == "STATION ID" ? trim(sides[1]) : std::string();
}

std::string zoneOf(HeaderSource& source) {
    for (;;) {
        const std::string line(source.readLine("time zone"));
        if (ucase(trim(leftN(line, 3))) == "UTC") return trim(line);
    }
}

/// The number before a hyphen.
std::int16_t countOf(HeaderSource& source, const char* part) {
    const std::string line(source.readLine(part));
    source.atField("number");
    const std::string count = trim(split(line, "-")[0]);
    source.atField("number", count);
    return toInt16(count);
}

DateTime readMoment(HeaderSource& source, HeaderFields& fields, const char* name) {
    const std::string year = fields.text("year");
    const std::string month = fields.text("month");
    const std::string day = fields.text("day");
    source.atField(name);
    const DateTime date = DateFromParts(year, month, day);
    const std::string hour = fields.text("hour");
    const std::int16_t seconds = fields.whole("seconds");
    source.atField(name);
    return AddTimeToDate(date, timeTextOf(hour, seconds));
}

/// Whether a wind direction and a wind speed are among the variables.
bool hasWind(HeaderSource& source) {
    const std::int16_t count = countOf(source, "number of variables");
    bool direction = false;
    bool speed = false;
    for (int i = 0; i < count; ++i) {
        HeaderFields variable(source, source.readLine("variable"));
        const std::string name = ucase(variable.text("name"));
        direction = direction || name == "WDIR";
        speed = speed || name == "WSPEED";
    }
    return direction && speed;
}

TsfHeader readLines(HeaderSource& source, const Format& format) {
    TsfHeader header;
    HeaderFields kind(source, ucase(source.readLine("file type")));
    if (kind.atEnd() || kind.text("name") != format.firstWord) return header;
    header.outcome = TsfOutcome::Refused;
    if (!format.hasVersion(kind.text("version"))) return header;
    const std::int16_t comments = countOf(source, "number of comment lines");
    for (int i = 0; i < comments; ++i) source.readLine("comment");
    source.readLine("line after the comments");  // there is one, however many comments there are
    source.readLine("kind of data");             // not used here
    header.station = stationOf(source);
    header.timeZone = zoneOf(source);
    if (ucase(trim(source.readLine("kind of dates"))) != "GREGORIAN_YMD") return header;
    HeaderFields period(source, source.readLine("period"));
    header.begin = readMoment(source, period, "begin");
    header.end = readMoment(source, period, "end");
    header.stepSeconds = period.longWhole("step");
    header.outcome = hasWind(source) ? TsfOutcome::Read : TsfOutcome::NotMeteorological;
    return header;
}

}  // namespace

TsfHeader readTsfHeader(HeaderSource& source) {
    return source.placing([&] { return readLines(source, formatOf(InputKind::Tsf)); });
}

}  // namespace zg
