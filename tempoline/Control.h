#pragma once

// What the control file of a run asks for.

#include <array>
#include <string>
#include <vector>

#include "formats/Kinds.h"
#include "tempoline/Times.h"
#include "windtable/TableLayout.h"

namespace zg::tempoline {

struct OutputRequest {
    int id = 0;
    std::string name;      ///< file name without directory and extension
    std::string location;  ///< may be empty
    std::string station;   ///< empty for gridded data
    double x = 0;          ///< in the units of the projection: km, degrees or cells
    double y = 0;
    double height = 0;     ///< metres above the ground; negative if unknown
    std::size_t line = 0;  ///< line of its name in the control file
};

struct Season {
    int id = 0;
    std::string name;
};

/// Hours numbered by their end, 0 to 23; a range whose first is above its last passes midnight.
struct HourRange {
    int first = 0;
    int last = 0;
};

constexpr std::size_t sectorCount = 16;
constexpr std::size_t classCount = 6;

/// How winds are sorted into roses.
struct RoseRules {
    std::array<double, classCount>
        classLimits{};  ///< lower limits, m/s, not decreasing; the first is that of calm
    std::array<std::string, classCount> limitTexts{};  ///< as written in the control file
    std::vector<Season> seasons;
    std::array<int, 12> seasonOfMonth{};  ///< season ids; an id without a season means none
    std::vector<HourRange> hourRanges;
};

/// Coordinates of a map, in kilometres or degrees, north and east positive.
struct MapSetting {
    std::string projection = "NONE";  ///< NONE, LL, UTM, TTM, LCC, PS, EM, LAZA
    std::string datum = "WGS-84";
    double falseEasting = 0;
    double falseNorthing = 0;
    int utmZone = 0;
    bool southern = false;
    double latitude0 = 0;
    double longitude0 = 0;
    double latitude1 = 0;
    double latitude2 = 0;
};

/// The value of MPROF for the 10 m wind in the data.
constexpr int directProfile = 4;

enum class SpatialMethod { Bilinear = 1, Nearest = 2 };

struct Control {
    std::string file;  ///< the control file itself
    std::string title;
    std::string listing;
    InputKind kind = InputKind::AermSfc;
    std::vector<std::string> inputs;
    std::vector<OutputRequest> outputs;
    bool wantsRoses = true;
    bool wantsSeries = true;
    Seconds begin = 0;  ///< in the zone of the run
    Seconds end = 0;
    std::size_t endLine = 0;  ///< line of its year in the control file
    std::string zone;         ///< key
    Seconds zoneOffset = 0;
    Seconds step = secondsAnHour;
    SpatialMethod method = SpatialMethod::Bilinear;
    MapSetting map;
    int profileMethod = 3;
    bool cellCoordinates = false;
    TableLayout table;  ///< of a table of winds
    RoseRules rules;
    std::vector<std::string> assignments;  ///< "KEY = value", as written
    std::vector<std::string> assumed;      ///< the same for keys that the file does not have
    std::vector<std::string> warnings;
};

}  // namespace zg::tempoline
