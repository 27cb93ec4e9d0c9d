#include "tempoline/readers/HeaderLines.h"

#include <array>
#include <span>

#include "base/Text.h"
#include "formats/Grids.h"
#include "tempoline/Fields.h"

namespace zg::tempoline {

namespace {

constexpr int daysALeapYear = 366;

/// "not 2.1" or "neither 2.0 nor 2.1".
std::string noneOf(std::span<const std::string_view> versions) {
    std::string text = versions.size() > 1 ? "neither " : "not ";
    for (std::size_t i = 0; i < versions.size(); ++i)
        text += (i > 0 ? " nor " : "") + std::string(versions[i]);
    return text;
}

}  // namespace

std::string versionOf(LineSource& lines, InputKind kind) {
    const Format& format = formatOf(kind);
    std::array<std::string_view, 2> fields;
    const std::size_t count = splitBlanks(lines.need("the kind of the file"), fields);
    if (count == 0 || ucase(fields[0]) != format.firstWord)
        throw lines.failure("", "this is no file of the kind " + std::string(format.firstWord));
    const std::string version(count > 1 ? fields[1] : "");
    if (!format.hasVersion(version))
        throw lines.failure("version", "\"" + version + "\" is " + noneOf(format.versions));
    return version;
}

int countOf(LineSource& lines, std::string_view what) {
    const std::string_view line = lines.need(what);
    std::array<std::string_view, 1> first;
    splitBlanks(line.substr(0, line.find('-')), first);
    const int count = wholeField(lines, first[0], what);
    if (count < 0 || count > mostComments)
        throw lines.failure(what, std::to_string(count) + " is not between 0 and 1000000");
    return count;
}

void skipComments(LineSource& lines) {
    lines.skip(static_cast<std::size_t>(countOf(lines, "number of comments")), "a comment");
}

double degreesField(const LineSource& place, std::string_view field, std::string_view name) {
    std::string text = ucase(field);
    if (text == "NONE") return 0;
    double sign = 1;
    const char last = text.empty() ? ' ' : text.back();
    if (last == 'N' || last == 'S' || last == 'E' || last == 'W') {
        sign = last == 'S' || last == 'W' ? -1 : 1;
        text.pop_back();
    }
    return sign * numberField(place, text, name);
}

double kilometresField(const LineSource& place, std::string_view field, std::string_view name) {
    return ucase(field) == "NONE" ? 0 : numberField(place, field, name);
}

void needPolarParallel(const LineSource& place, const MapSetting& map) {
    if (map.projection == "PS" && map.latitude1 == 0)
        throw place.failure("XLAT1", "a polar map needs the parallel that it is true at");
}

std::optional<Seconds> promisedEnd(std::string_view year, std::string_view month, std::string_view day,
                                   std::string_view hour, std::string_view second) {
    const std::optional<int> y = wholeOf(year);
    const std::optional<int> m = wholeOf(month);
    const std::optional<int> d = wholeOf(day);
    const std::optional<int> h = wholeOf(hour);
    const std::optional<int> s = wholeOf(second);
    if (!y || !m || !d || !h || !s) return {};
    const bool isMoment = faultOfDate(fullYear(*y), *m, *d).empty() && faultOfHour(*h, *s).empty();
    return isMoment ? std::optional(momentOf(fullYear(*y), *m, *d, *h, *s)) : std::nullopt;
}

std::optional<Seconds> promisedEnd(std::string_view year, std::string_view julianDay, std::string_view hour,
                                   std::string_view second) {
    const std::optional<int> day = wholeOf(julianDay);
    const std::optional<Seconds> first = promisedEnd(year, "1", "1", hour, second);
    if (!first || !day || *day < 1 || *day > daysALeapYear) return {};
    return *first + (*day - 1) * secondsADay;
}

Seconds zoneField(const LineSource& place, std::string_view key) {
    const std::optional<Seconds> offset = zoneOffset(key);
    if (!offset)
        throw place.failure("time zone",
                            "\"" + std::string(key.substr(0, 20)) + "\" is no zone such as UTC-0500");
    return *offset;
}

}  // namespace zg::tempoline
