// Any bytes as the table of stations, the table of time zones and the suite's configuration: gives whole
// rows, or none.

#include "graph/control/SuiteConfiguration.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

namespace {

void readZones() {
    zg::timeZones = {};
    try {
        zg::LoadTimeZones();
    } catch (const zg::RunTimeError&) {
        if (!zg::timeZones.gsTimeZoneKeys.empty()) std::abort();
    }
    if (zg::timeZones.gsTimeZoneKeys.size() != zg::timeZones.gsTimeZoneLabels.size()) std::abort();
    for (const std::string& key : zg::timeZones.gsTimeZoneKeys) {
        try {
            zg::TimeZoneFromHours(zg::HoursFromTimeZone(key));
        } catch (const zg::RunTimeError&) {
            continue;  // an expected outcome
        }
    }
}

}  // namespace

FUZZ_TARGET(tables) {
    readAsFile(data, size, [](zg::Host&, const std::string& path) {
        static char directory[] = "/tmp/tables_fuzz_XXXXXX";
        static const bool made =
            (useAsApplicationDirectory(directory, path, {"Station_Data.csv", "TimeZones.txt"}), true);
        if (!made) return;
        zg::LoadStationData();
        if (zg::stations.rows > zg::stations.gsStationCol9.size()) std::abort();
        readZones();
        std::string workDirectory;
        zg::readSuiteWorkDir(path, workDirectory);
    });
    return 0;
}
