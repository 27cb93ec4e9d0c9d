#include "headers/TsfHeader.h"

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "formats/Kinds.h"
#include "headers/DateHelpers.h"
#include "headers/HeaderDates.h"

namespace zg {

namespace {

std::string squeezed(LineReader& lines) { return squeezeBlanks(lines.readLine()); }

/// "...: STATION ID = 14735" gives the station; any other line, or a blank one, gives none.
std::string stationOf(const std::string& line) {
    if (line.empty()) return {};
    const std::string behind(split(line, ":")[1]);
    const Pieces sides = split(behind, "=");
    return ucase(trim(sides[0])) == "STATION ID" ? trim(sides[1]) : std::string();
}

std::string zoneOf(LineReader& lines) {
    for (;;) {
        const std::string line(lines.readLine());
        if (ucase(trim(leftN(line, 3))) == "UTC") return trim(line);
    }
}

DateTime momentAt(const Pieces& fields, std::size_t from) {
    const DateTime date = DateFromParts(std::string(fields[from]), std::string(fields[from + 1]),
                                        std::string(fields[from + 2]));
    return AddTimeToDate(date, timeTextOf(std::string(fields[from + 3]), toInt16(fields[from + 4])));
}

/// Whether a wind direction and a wind speed are among the variables.
bool hasWind(LineReader& lines) {
    const std::string countLine(lines.readLine());
    const std::int16_t count = toInt16(trim(split(countLine, "-")[0]));
    bool direction = false;
    bool speed = false;
    for (int i = 0; i < count; ++i) {
        const std::string line = squeezed(lines);
        const std::string name = ucase(trim(split(line, " ")[0]));
        direction = direction || name == "WDIR";
        speed = speed || name == "WSPEED";
    }
    return direction && speed;
}

TsfHeader readLines(LineReader& lines) {
    TsfHeader header;
    const std::string first = ucase(squeezed(lines));
    const Pieces kind = split(first, " ");
    if (kind.size() == 0 || kind[0] != formatOf(InputKind::Tsf).firstWord) return header;
    header.outcome = TsfOutcome::Refused;
    if (!formatOf(InputKind::Tsf).hasVersion(kind[1])) return header;
    const std::string countLine(lines.readLine());
    const std::int16_t comments = toInt16(trim(split(countLine, "-")[0]));
    for (int i = 0; i < comments; ++i) lines.readLine();
    lines.readLine();  // one line follows the comments, however many there are
    lines.readLine();  // the kind of data, not used here
    header.station = stationOf(squeezed(lines));
    header.timeZone = zoneOf(lines);
    if (ucase(trim(lines.readLine())) != "GREGORIAN_YMD") return header;
    const std::string period = squeezed(lines);
    const Pieces fields = split(period, " ");
    header.begin = momentAt(fields, 0);
    header.end = momentAt(fields, 5);
    header.stepSeconds = toInt32(fields[10]);
    header.outcome = hasWind(lines) ? TsfOutcome::Read : TsfOutcome::NotMeteorological;
    return header;
}

}  // namespace

TsfHeader readTsfHeader(const std::string& path) {
    LineReader lines(path);
    return withLineNumbers(lines, [&] { return readLines(lines); });
}

}  // namespace zg
