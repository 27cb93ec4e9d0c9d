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

/// Whether X and Y of one map are those of the other, within the seven digits that headers and dialogs carry.
bool isSameMap(const MapSetting& a, const MapSetting& b);

/// The map of a control file over data of another: that of EM data along the same meridian is true where the
/// data's is, since no control file can say it.
MapSetting completed(MapSetting asked, const MapSetting& data);

/// Degrees by which the grid's north lies clockwise of true north at a point of the map: what a direction by
/// the grid lacks to one by the compass. 0 in degrees. Throws a Failure at a pole, where nothing is north,
/// and as converted does.
double convergenceAt(MapPoint point, const MapSetting& map);

/// The point of one map in another. Throws a Failure where a setting makes no projection and where the point
/// has no place in it.
MapPoint converted(MapPoint point, const MapSetting& from, const MapSetting& to);

}  // namespace zg::tempoline
