#include "headers/Stations.h"

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

StationTable stations;

namespace {

constexpr std::size_t columnCount = 10;

std::array<std::vector<std::string>*, columnCount> columnsOf(StationTable& table) {
    return {&table.gsStationCol0, &table.gsStationCol1, &table.gsStationCol2, &table.gsStationCol3,
            &table.gsStationCol4, &table.gsStationCol5, &table.gsStationCol6, &table.gsStationCol7,
            &table.gsStationCol8, &table.gsStationCol9};
}

/// Number of lines after the first one: the heading and the rows.
std::size_t linesAfterFirst(const std::string& path) {
    LineReader lines(path);
    std::size_t count = 0;
    lines.readLine();
    for (; !lines.atEnd(); ++count) lines.readLine();
    return count;
}

bool isStationHeading(std::string_view line) {
    const Pieces fields = split(line, ",");
    return ucase(trimmed(fields[0])) == "STATION_DATA.CSV" && ucase(trimmed(fields[1])) == "V1.0";
}

void readStations(const std::string& path) {
    const std::size_t slots = linesAfterFirst(path);
    const auto columns = columnsOf(stations);
    stations.rows = 0;
    for (std::vector<std::string>* column : columns) column->assign(slots, {});

    LineReader lines(path);
    if (!isStationHeading(lines.readLine())) return;
    lines.readLine();
    for (; !lines.atEnd() && stations.rows < slots; ++stations.rows) {
        const Pieces fields = split(lines.readLine(), ",");
        for (std::size_t i = 0; i < columnCount; ++i) (*columns[i])[stations.rows] = trim(fields[i]);
    }
}

}  // namespace

void LoadStationData() {
    try {
        readStations(inApplicationDirectory("Station_Data.csv"));
    } catch (const RunTimeError&) {
        // Without the table names are not found, and outputs are named after their input file.
    }
}

std::string stationNameOf(const std::string& code) {
    const std::string wanted = ucase(trim(code));
    for (std::size_t i = 0; i < stations.gsStationCol1.size(); ++i)
        if (ucase(trim(stations.gsStationCol1[i])) == wanted) return stations.gsStationCol0[i];
    return {};
}

}  // namespace zg
