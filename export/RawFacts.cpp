#include "export/RawFacts.h"

#include "base/Encoding.h"
#include "base/Lines.h"
#include "base/Numbers.h"
#include "headers/RawHeader.h"
#include "windtable/TableFields.h"
#include "windtable/TableRecords.h"
#include "windtable/TableTimes.h"

namespace zg {

namespace {

constexpr const char* usualHeight = "10";  // as in the dialogs
constexpr std::int64_t epochFrom1899 = std::int64_t{25569} * 86400;

/// The reference height of the first hours with a wind, in the file's own digits.
std::string heightOfSurface(const std::string& path) {
    constexpr std::size_t speedColumn = 16;
    constexpr std::size_t heightColumn = 18;
    constexpr int mostHours = 1000;
    LineReader lines(path);
    lines.readLine();
    for (int hour = 0; hour < mostHours && !lines.atEnd(); ++hour) {
        TableFields fields;
        fields.cut(lines.readLine(), blankDelimiter, heightColumn);
        const double height = val(fields.at(heightColumn));
        if (val(fields.at(speedColumn)) < 900 && height > 0 && height < 900)
            return std::string(fields.at(heightColumn));
    }
    return usualHeight;
}

/// Those of the first hour.
std::vector<std::string> heightsOfProfile(const std::string& path) {
    constexpr std::size_t heightColumn = 5;
    LineReader lines(path);
    std::vector<std::string> heights;
    std::string hour;
    while (!lines.atEnd()) {
        TableFields fields;
        fields.cut(lines.readLine(), blankDelimiter, heightColumn);
        std::string time;
        for (std::size_t column = 1; column < heightColumn; ++column)
            time.append(fields.at(column)).append(" ");
        if (!hour.empty() && time != hour) break;
        hour = time;
        heights.emplace_back(fields.at(heightColumn));
    }
    return heights;
}

void readTable(const std::string& path, const RawWishes& wishes, RawFacts& facts) {
    TableWishes wished = wishes.table;
    if (wishes.stations.size() == 1) wished.station = wishes.stations.front();
    try {
        facts.table = guessTable(path, wished);
    } catch (const TableProblem& problem) {
        throw RawFault(problem.what(), problem.isWrongWish);
    }
    const TableFacts& table = facts.table;
    if (table.layout.station.find('!') != std::string::npos)
        throw RawFault(path + ": --station: a \"!\" ends a value of the control file", true);
    facts.begin = DateTime{table.begin + epochFrom1899};
    facts.end = DateTime{table.end + epochFrom1899};
    if (table.zone) facts.zone = zoneWord(*table.zone);
    facts.stepSeconds = static_cast<int>(table.layout.recordSeconds);
    if (table.height) facts.heights = {singleText(static_cast<float>(*table.height))};
    facts.told = {path + ": " + takenText(table)};
    if (wished.station.empty() || table.onlyStation.empty()) return;
    if (toUtf8(wished.station) != toUtf8(table.onlyStation))
        facts.told.push_back(path + ": its only station is " + quotedValue(table.onlyStation) + "; " +
                             quotedValue(wished.station) + " is only the name");
}

std::string faultText(const std::string& path, const HeaderError& error) {
    std::string text = path;
    if (error.place.line > 0) text += ":" + std::to_string(error.place.line);
    text += ": ";
    if (!error.place.field.empty()) text += error.place.field + " ";
    return text + (error.problem.empty() ? error.description : error.problem);
}

void readHeader(const std::string& path, RawFacts& facts) {
    try {
        HeaderSource source(path);
        const RawHeader header = readRawHeader(source, facts.kind);
        facts.begin = header.begin;
        facts.end = header.end;
        facts.zone = header.timeZone;
        facts.stations = header.stations;
        if (header.stepSeconds > 0) facts.stepSeconds = header.stepSeconds;
    } catch (const HeaderError& error) {
        throw RawFault(faultText(path, error), false);
    }
    if (facts.kind == InputKind::AermSfc) facts.heights = {heightOfSurface(path)};
    if (facts.kind == InputKind::AermPfl) facts.heights = heightsOfProfile(path);
    if (facts.kind == InputKind::Tsf) facts.heights.clear();
}

}  // namespace

RawFacts rawFactsOf(const std::string& path, InputKind kind, const RawWishes& wishes) {
    RawFacts facts;
    facts.kind = kind;
    facts.heights = {usualHeight};
    if (kind == InputKind::Csv)
        readTable(path, wishes, facts);
    else
        readHeader(path, facts);
    return facts;
}

}  // namespace zg
