#pragma once

// The datum-regions of a projection: continent, geoid and ellipsoid, region, code.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "formats/Datums.h"

namespace zg {

/// One record as the operation returns it.
struct InitResult {
    std::int32_t DatumCount = 0;
    std::int32_t status = 0;  ///< not 0 if the file's date stamp is not the one compiled in
    std::string continent;
    std::string ellipsoid;
    std::string code;
    std::array<std::string, 3> region;  ///< pieces of one text
    std::string dateStamp;
};

/// Returns record number 1 and up. Raises a RunTimeError if the data file is missing or invalid.
using InitOperation = std::function<void(std::int32_t record, InitResult& result)>;

/// The table, in file order: all regions of a continent are consecutive.
struct ModDatums {
    InitOperation init;
    std::vector<DatumRegion> datums;
};

extern ModDatums modDatums;

/// Reads the whole table; false if the date stamps differ, with nothing read. Raises the errors of the
/// operation.
bool ReadDatumTable();

/// The program's own operation: datums.csv in the program's directory, read again for record 1. Raises 53
/// without the file, 13 for an invalid line, 9 for a record that does not exist.
void readDatumRecord(std::int32_t record, InitResult& result);

/// Common spellings of four codes, exactly as listed, are converted to the table's: "NAD27" is "NAS-C".
std::string DatumAlias(const std::string& typed);

/// The region with exactly that code, nullptr if there is none.
const DatumRegion* DatumLookUp(const std::string& code);

// The selection from continent to code, each level in the order of the table:
std::vector<std::string> continents();
std::vector<std::string> ellipsoidsOf(const std::string& continent);
std::vector<std::string> regionsOf(const std::string& ellipsoid);
/// The code of a region; if two have the same name, that of the continent. "" if there is none.
std::string codeOf(const std::string& continent, const std::string& ellipsoid, const std::string& region);

}  // namespace zg
