#pragma once

// Converts coordinates of one map to another. PROJ does all the computation.

#include <optional>
#include <string>

#include "tempoline/Control.h"
#include "tempoline/Failure.h"

namespace zg::tempoline {

struct MapPoint {
    double x = 0;  ///< km east, or degrees of longitude, east positive
    double y = 0;  ///< km north, or degrees of latitude, north positive
};

/// The part of a PROJ definition for a datum code such as "WGS-84" or "NAS-C"; nothing for an unknown code.
std::optional<std::string> datumDefinition(const std::string& code);

/// The message for an unknown code.
std::string unknownDatum(const std::string& code);

/// Whether X and Y mean the same on both maps, within the seven digits that headers and dialogs hold.
bool isSameMap(const MapSetting& a, const MapSetting& b);

/// The map of a control file for data on another map: for EM data with the same central meridian it takes the
/// data's true latitude, since a control file cannot state it.
MapSetting completed(MapSetting asked, const MapSetting& data);

/// Degrees by which grid north is clockwise of true north at a point of the map; add them to a direction
/// relative to the grid to get a compass direction. 0 for coordinates in degrees. Throws a Failure at a pole,
/// where north is undefined, and like `converted`.
double convergenceAt(MapPoint point, const MapSetting& map);

/// The point of one map in another. Throws a Failure if the settings do not define a projection or the point
/// cannot be projected.
MapPoint converted(MapPoint point, const MapSetting& from, const MapSetting& to);

}  // namespace zg::tempoline
