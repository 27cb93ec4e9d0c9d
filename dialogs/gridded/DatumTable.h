#pragma once

// The datum-regions that a projection may refer to: continent, geoid and ellipsoid, region, code.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zg {

/// One record as the operation hands it out.
struct InitResult {
    std::int32_t DatumCount = 0;
    std::int32_t status = 0;  ///< other than 0: the file's date stamp is not the one that was compiled in
    std::string continent;
    std::string ellipsoid;
    std::string code;
    std::array<std::string, 3> region;  ///< pieces of one text
    std::string dateStamp;
};

/// Hands out record number 1 and up. Raises a RunTimeError where the data file is missing or broken.
using InitOperation = std::function<void(std::int32_t record, InitResult& result)>;

struct DatumRegion {
    std::string continent;  ///< continent or ocean
    std::string ellipsoid;  ///< geoid and ellipsoid
    std::string region;
    std::string code;  ///< such as "NAS-C"
};

/// The table, in the order of the file: all regions of a continent stand together.
struct ModDatums {
    InitOperation init;
    std::vector<DatumRegion> datums;
};

extern ModDatums modDatums;

/// Reads the whole table; false where the date stamps differ, with nothing read. Raises what the operation
/// raises.
bool ReadDatumTable();

/// The program's own operation: datums.csv in the program's directory, read anew for record 1. Raises 53
/// without the file, 13 for a broken line, 9 for a record it does not have.
void readDatumRecord(std::int32_t record, InitResult& result);

/// Usual spellings of four codes, exactly as listed, become the table's: "NAD27" is "NAS-C".
std::string DatumAlias(const std::string& typed);

/// The region of that code, nullptr where no code is exactly so.
const DatumRegion* DatumLookUp(const std::string& code);

// The cascade from continent to code, each level in the order of the table:
std::vector<std::string> continents();
std::vector<std::string> ellipsoidsOf(const std::string& continent);
std::vector<std::string> regionsOf(const std::string& ellipsoid);
/// The code of a region; where two have one name, that of the continent. "" where there is none.
std::string codeOf(const std::string& continent, const std::string& ellipsoid, const std::string& region);

}  // namespace zg
