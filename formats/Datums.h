#pragma once

// The datum-regions of maps: data/datums.csv, which the dialog reads from the program's directory, and which
// is also built in for the processor. Shifts are the mean ones to WGS 84 as published by the national imagery
// and mapping agencies. If a later edition publishes other figures under a new code (INH-A1, TOY-B1), the old
// code keeps its figures. NAP has none: its editions differ by 11 m under one code, and the later figure is
// considered an error.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Lines.h"

namespace zg {

struct DatumRegion {
    std::string continent;  ///< continent or ocean
    std::string ellipsoid;  ///< geoid and ellipsoid: "ADINDAN - Clarke 1880"
    std::string region;
    std::string code;  ///< such as "NAS-C"
    /// Metres added to the geocentric coordinates x, y and z; none for a datum that is more than a shift.
    std::optional<std::array<int, 3>> shift = {};
};

struct DatumFile {
    std::string stamp;  ///< date of the table
    std::vector<DatumRegion> rows;
};

/// Raises 13 for an invalid line, with its number, and 62 for a file without the first two lines.
DatumFile readDatums(LineReader& lines);

/// The table that was built in.
const DatumFile& builtInDatums();

/// Common spellings of four codes, exactly as listed, are converted to the table's: "NAD27" is "NAS-C".
std::string datumOfSpelling(const std::string& typed);

}  // namespace zg
