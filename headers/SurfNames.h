#pragma once

// Names of the files that a SURF.DAT run makes.

#include <string>

namespace zg {

/// The name of the station of that code in the table of stations, "" if it is not there.
std::string stationNameOf(const std::string& code);

/// Name of a station's output.
std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height);

}  // namespace zg
