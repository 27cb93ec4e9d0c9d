#include "headers/AermetPeriod.h"

#include "base/Lines.h"
#include "base/Text.h"
#include "headers/DateHelpers.h"
#include "headers/HeaderDates.h"

namespace zg {

namespace {

constexpr std::size_t stationField = 5;
constexpr std::size_t bytesBetweenSteps = 4'000'000;

DateTime momentOfLine(std::string_view line, AermetKind kind) {
    const std::string squeezed = squeezeBlanks(line);
    const Pieces fields = split(squeezed, " ");
    const std::string hour(fields[kind == AermetKind::Surface ? 4 : 3]);
    const DateTime date =
        DateFromParts(std::string(fields[0]), std::string(fields[1]), std::string(fields[2]));
    if (hour == "24") return addDays(date, 1);
    return AddTimeToDate(date, hour + ":00:00");
}

AermetPeriod readLines(LineReader& lines, AermetKind kind, const std::function<void()>& onProgress) {
    AermetPeriod period;
    if (kind == AermetKind::Surface) {
        const std::string header = squeezeBlanks(lines.readLine());
        period.station = std::string(split(header, " ")[stationField]);
    }
    std::string last(lines.readLine());
    period.begin = addSeconds(momentOfLine(last, kind), -3600);
    std::size_t bytes = 0;
    while (!lines.atEnd()) {
        const std::string_view line = lines.readLine();
        bytes += line.size();
        if (onProgress && bytes >= bytesBetweenSteps) {
            onProgress();
            bytes = 0;
        }
        if (!trimmed(line).empty()) last.assign(line);
    }
    period.end = momentOfLine(last, kind);
    return period;
}

}  // namespace

AermetPeriod readAermetPeriod(const std::string& path, AermetKind kind,
                              const std::function<void()>& onProgress) {
    LineReader lines(path);
    return withLineNumbers(lines, [&] { return readLines(lines, kind, onProgress); });
}

}  // namespace zg
