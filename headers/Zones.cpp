#include "headers/Zones.h"

#include <cmath>

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace zg {

TimeZoneTable timeZones;

namespace {

TimeZoneTable readTimeZones(const std::string& path) {
    TimeZoneTable table;
    LineReader lines(path);
    try {
        lines.readLine();
        while (!lines.atEnd()) {
            const Pieces fields = split(lines.readLine(), "\t");
            table.gsTimeZoneKeys.push_back(trim(fields[0]));
            table.gsTimeZoneLabels.push_back(trim(fields[1]));
        }
    } catch (RunTimeError& error) {
        if (error.number == static_cast<int>(ErrorNumber::SubscriptOutOfRange))
            error.where = std::to_string(lines.lineNumber()) + ": a key, a tab and a label are needed";
        lines.addPlace(error);
        throw;
    }
    return table;
}

}  // namespace

void LoadTimeZones() {
    if (timeZones.gsTimeZoneKeys.empty()) timeZones = readTimeZones(inApplicationDirectory("TimeZones.txt"));
}

float HoursFromTimeZone(std::string_view key) {
    const float west = 0.0F - toSingle(midN(key, 4, 3));
    return rightN(key, 2) == "30" ? west + 0.5F : west;
}

std::string TimeZoneFromHours(double hours) {
    return "UTC" + std::string(hours <= 0 ? "+" : "-") + format00(std::abs(hours)) + "00";
}

}  // namespace zg
