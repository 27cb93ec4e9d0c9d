#include "headers/SurfNames.h"

#include "base/Text.h"
#include "headers/Stations.h"

namespace zg {

std::string stationNameOf(const std::string& code) {
    const std::string wanted = ucase(trim(code));
    for (std::size_t i = 0; i < stations.gsStationCol1.size(); ++i)
        if (ucase(trim(stations.gsStationCol1[i])) == wanted) return stations.gsStationCol0[i];
    return {};
}

std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height) {
    const std::string start = stationName.empty() ? fileBase + "-" + row : stationName;
    return start + "_SURF_" + period + "_" + height + "m";
}

}  // namespace zg
