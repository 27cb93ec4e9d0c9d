#include "headers/RawHeader.h"

#include <algorithm>

#include "base/Text.h"
#include "headers/AermetPeriod.h"
#include "headers/GridFileHeader.h"
#include "headers/MonitorHeader.h"
#include "headers/SurfHeader.h"
#include "headers/TsfHeader.h"
#include "headers/UpHeader.h"

namespace zg {

namespace {

constexpr std::int32_t hourSeconds = 3600;

[[noreturn]] void failFirstLine(HeaderSource& source, const std::string& problem) {
    source.atLine({1, "file type"});
    source.fail(problem);
}

[[noreturn]] void failKind(HeaderSource& source, InputKind kind) {
    failFirstLine(source, "the file does not begin with " + std::string(formatOf(kind).firstWord));
}

[[noreturn]] void failVersion(HeaderSource& source) { failFirstLine(source, "the version is not known"); }

void addStation(RawHeader& raw, const std::string& station) {
    const bool isNew = std::find(raw.stations.begin(), raw.stations.end(), station) == raw.stations.end();
    if (isNew && !station.empty()) raw.stations.push_back(station);
}

void readSurf(HeaderSource& source, RawHeader& raw) {
    SurfHeader header;
    readSurfHeader(source, header);
    if (header.outcome == SurfOutcome::NotSurf) failKind(source, raw.kind);
    if (header.outcome == SurfOutcome::UnknownVersion) failVersion(source);
    raw.timeZone = header.timeZone;
    raw.begin = header.begin;
    raw.end = header.end;
    raw.stepSeconds = hourSeconds;
    for (const std::string& station : header.stations) addStation(raw, station);
}

void readUp(HeaderSource& source, RawHeader& raw) {
    const UpHeader header = readUpHeader(source);
    if (!header.isUp) failKind(source, raw.kind);
    if (header.version.empty()) failVersion(source);
    raw.timeZone = header.timeZone;
    raw.begin = header.begin;
    raw.end = header.end;
    addStation(raw, header.station);
}

void readMonitor(HeaderSource& source, RawHeader& raw) {
    const MonitorHeader header = readMonitorHeader(source);
    if (!header.isMonitor) {
        source.atLine({1, "names"});
        source.fail("there are no columns DATETIME and STNCODE");
    }
    raw.begin = header.begin;
    raw.end = header.end;
    raw.stepSeconds = header.averagingMinutes * 60;
    for (const std::string& station : header.stations) addStation(raw, station);
}

void readAermet(HeaderSource& source, RawHeader& raw) {
    const AermetPeriod period = readAermetPeriod(source, raw.kind);
    raw.begin = period.begin;
    raw.end = period.end;
    raw.stepSeconds = hourSeconds;
    addStation(raw, period.station);
}

void readTsf(HeaderSource& source, RawHeader& raw) {
    const TsfHeader header = readTsfHeader(source);
    if (header.outcome == TsfOutcome::NotTsf) failKind(source, raw.kind);
    source.atField("");
    if (header.outcome == TsfOutcome::Refused)
        source.fail("the version is not 1.3, or the dates are not GREGORIAN_YMD");
    if (header.outcome == TsfOutcome::NotMeteorological) source.fail("there is no WDIR or no WSPEED");
    raw.timeZone = header.timeZone;
    raw.begin = header.begin;
    raw.end = header.end;
    raw.stepSeconds = header.stepSeconds;
    addStation(raw, header.station);
}

DateTime momentOfTime(const InfoViewResult::Time& time) {
    return addSeconds(makeDate(time.year, time.month, time.day),
                      std::int64_t{time.hour} * hourSeconds + time.seconds);
}

void readGrid(HeaderSource& source, RawHeader& raw) {
    InfoViewResult header;
    raw.stepSeconds = readGridHeader(source, raw.kind, header);
    raw.timeZone = header.timeZone;
    raw.begin = momentOfTime(header.first);
    raw.end = momentOfTime(header.last);
}

}  // namespace

RawHeader readRawHeader(HeaderSource& source, InputKind kind) {
    RawHeader raw;
    raw.kind = kind;
    switch (kind) {
        case InputKind::Surf:
            readSurf(source, raw);
            break;
        case InputKind::Up:
            readUp(source, raw);
            break;
        case InputKind::MonitorW:
            readMonitor(source, raw);
            break;
        case InputKind::AermSfc:
        case InputKind::AermPfl:
            readAermet(source, raw);
            break;
        case InputKind::Tsf:
            readTsf(source, raw);
            break;
        case InputKind::M3d:
        case InputKind::Ventos:
            readGrid(source, raw);
            break;
        case InputKind::Csv:
            failFirstLine(source, "a table of winds has no header of its own");
    }
    raw.timeZone = ucase(trim(raw.timeZone));
    return raw;
}

}  // namespace zg
