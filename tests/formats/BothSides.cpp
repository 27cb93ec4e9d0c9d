#include "tests/formats/BothSides.h"

#include <vector>

#include "headers/RawHeader.h"
#include "tempoline/Failure.h"
#include "tempoline/readers/Reader.h"
#include "tests/support/TempDirectory.h"

namespace zg {

namespace {

/// Wide enough for every file, with steps as long as any record.
tempoline::Control controlOf(InputKind kind, const Asked& asked) {
    tempoline::Control control;
    control.kind = kind;
    control.begin = tempoline::momentOf(1880, 1, 1, 0, 0);
    control.end = tempoline::momentOf(2120, 1, 1, 0, 0);
    control.step = tempoline::secondsADay;
    control.zone = "UTC+0000";
    control.rules.classLimits = {0.5, 1.8, 3.3, 5.4, 8.5, 10.8};
    control.rules.seasonOfMonth.fill(1);
    control.rules.seasons = {{1, "Year"}};
    control.cellCoordinates = kind == InputKind::M3d && asked.map == "NONE";
    control.map.projection = asked.map;
    tempoline::OutputRequest output;
    output.id = 1;
    output.name = "out";
    output.station = asked.station;
    output.x = asked.x;
    output.y = asked.y;
    output.height = 20;
    control.outputs = {output};
    return control;
}

/// The text between two others, "" if they are not there.
std::string between(const std::string& text, const std::string& before, const std::string& after) {
    const std::size_t begin = text.find(before);
    if (begin == std::string::npos) return {};
    const std::size_t from = begin + before.size();
    return text.substr(from, text.find(after, from) - from);
}

/// "2005-12-31 23:00:00"
DateTime momentOfIso(const std::string& text) {
    const auto number = [&](std::size_t at, std::size_t count) { return std::stoi(text.substr(at, count)); };
    return addSeconds(makeDate(number(0, 4), number(5, 2), number(8, 2)),
                      number(11, 2) * 3600 + number(14, 2) * 60 + number(17, 2));
}

}  // namespace

Seen seenByDialog(InputKind kind, const std::string& text) {
    Seen seen;
    try {
        HeaderSource source(text, "file");
        const RawHeader header = readRawHeader(source, kind);
        seen = {true, "", header.timeZone, "", header.begin, header.end};
        if (!header.stations.empty()) seen.station = header.stations.front();
    } catch (const HeaderError& error) {
        seen.message = messageOf(error);
    }
    return seen;
}

Seen seenByProcessor(InputKind kind, const std::string& text, const Asked& asked) {
    const TempDirectory directory;
    const tempoline::Control control = controlOf(kind, asked);
    std::vector<tempoline::Series> series;
    series.emplace_back(control);
    const auto reader = tempoline::makeReader(control);
    Seen seen;
    try {
        reader->read(directory.write("file", text), series);
    } catch (const tempoline::Failure& failure) {
        seen.message = failure.what();
        return seen;
    }
    seen.reads = true;
    seen.station = reader->facts.station;
    std::int64_t east = 0;
    for (const std::string& note : reader->facts.notes) {
        if (const std::string zone = between(note, "seconds, from ", " of the data"); !zone.empty()) {
            seen.zone = zone;
            east = zoneOffset(zone).value_or(0);
        }
        if (const std::string promised = between(note, "the header promises data until ", ",");
            !promised.empty())
            seen.end = addSeconds(momentOfIso(promised), east);
    }
    const tempoline::RecordCounts& records = series[0].records();
    if (records.used == 0) return seen;
    const auto moment = [&](tempoline::Seconds seconds) {
        return addSeconds(makeDate(1970, 1, 1), seconds + east);
    };
    seen.begin = moment(records.firstUsed.begin);
    seen.end = moment(records.lastUsed.end);
    return seen;
}

}  // namespace zg
