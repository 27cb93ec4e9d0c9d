#pragma once

// The table of stations, from which the dialogs get the name and place for a station's code.

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace zg {

/// Ten columns of the same length. The last slot stays empty, so a search must not ask for an empty code.
struct StationTable {
    std::vector<std::string> gsStationCol0;  ///< name
    std::vector<std::string> gsStationCol1;  ///< code
    std::vector<std::string> gsStationCol2;  ///< X location
    std::vector<std::string> gsStationCol3;  ///< Y location
    std::vector<std::string> gsStationCol4;
    std::vector<std::string> gsStationCol5;
    std::vector<std::string> gsStationCol6;
    std::vector<std::string> gsStationCol7;  ///< Y location, X location and datum of the gridded dialogs
    std::vector<std::string> gsStationCol8;
    std::vector<std::string> gsStationCol9;

    /// Number of complete rows; those after them are empty or, after an invalid row, half filled.
    std::size_t rows = 0;
};

extern StationTable stations;

/// Reads Station_Data.csv from the program's directory. Any failure is silent and leaves the table as it is
/// at that moment: a missing file leaves it untouched, a wrong heading leaves empty slots.
void LoadStationData();

/// The name of the station with that code, in any letter case; "" if the table does not have it.
std::string stationNameOf(const std::string& code);

}  // namespace zg
