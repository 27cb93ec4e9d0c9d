#pragma once

// Coordinates of one map as those of another. All formulas are PROJ's.

#include <optional>
#include <string>

#include "tempoline/Control.h"
#include "tempoline/Failure.h"

namespace zg::tempoline {

struct MapPoint {
    double x = 0;  ///< km to the east, or degrees of longitude, east positive
    double y = 0;  ///< km to the north, or degrees of latitude, north positive
};

/// The part of a PROJ definition that stands for a datum code such as "WGS-84" or "NAS-C"; nothing for a code
/// that is not known.
std::optional<std::string> datumDefinition(const std::string& code);

/// What is said of a code that is not known.
std::string unknownDatum(const std::string& code);

/// The point of one map in another. Throws a Failure where a setting makes no projection and where the point
/// has no place in it.
MapPoint converted(MapPoint point, const MapSetting& from, const MapSetting& to);

}  // namespace zg::tempoline
