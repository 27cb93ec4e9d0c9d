#include "headers/AermetPeriod.h"

#include "base/Text.h"
#include "headers/DateHelpers.h"

namespace zg {

namespace {

constexpr std::size_t stationField = 5;
constexpr std::size_t bytesBetweenSteps = 4'000'000;

DateTime momentOfLine(HeaderSource& source, std::string_view line, InputKind kind) {
    HeaderFields fields(source, line);
    const std::string year = fields.text("year");
    const std::string month = fields.text("month");
    const std::string day = fields.text("day");
    if (kind == InputKind::AermSfc) fields.skip(1);
    const std::string hour = fields.text("hour");
    source.atField("date");
    const DateTime date = DateFromParts(year, month, day);
    if (hour == "24") return addDays(date, 1);
    source.atField("hour", hour, "an hour");
    return AddTimeToDate(date, hour + ":00:00");
}

AermetPeriod readLines(HeaderSource& source, InputKind kind, const std::function<void()>& onProgress) {
    AermetPeriod period;
    if (kind == InputKind::AermSfc) {
        HeaderFields header(source, source.readLine("header"));
        header.skip(stationField);
        period.station = header.text("station");
    }
    std::string last(source.readLine("first hour"));
    HeaderSource::Line lastLine = source.line();
    period.begin = addSeconds(momentOfLine(source, last, kind), -3600);
    std::size_t bytes = 0;
    while (!source.atEnd()) {
        const std::string_view line = source.readLine("last hour");
        bytes += line.size();
        if (onProgress && bytes >= bytesBetweenSteps) {
            onProgress();
            bytes = 0;
        }
        if (trimmed(line).empty()) continue;
        last.assign(line);
        lastLine = source.line();
    }
    source.atLine(lastLine);
    period.end = momentOfLine(source, last, kind);
    return period;
}

}  // namespace

AermetPeriod readAermetPeriod(HeaderSource& source, InputKind kind, const std::function<void()>& onProgress) {
    return source.placing([&] { return readLines(source, kind, onProgress); });
}

}  // namespace zg
