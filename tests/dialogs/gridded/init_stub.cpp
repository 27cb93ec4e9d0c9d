// A library such as a user may put beside the program: its table of datums.

#include <cstdint>
#include <string>

#include "tests/dialogs/gridded/StubText.h"

extern "C" void init(const std::int32_t* record, std::int32_t* count, std::int32_t* status, char* continent,
                     char* ellipsoid, char* code, char* region1, char* region2, char* region3, char* stamp,
                     std::int32_t continentLength, std::int32_t ellipsoidLength, std::int32_t codeLength,
                     std::int32_t region1Length, std::int32_t region2Length, std::int32_t region3Length,
                     std::int32_t stampLength) {
    *count = 2;
    *status = 0;
    put(continent, continentLength, "MOON");
    put(ellipsoid, ellipsoidLength, "Sphere");
    put(code, codeLength, "MON-" + std::to_string(*record));
    put(region1, region1Length, " Sea of ");
    put(region2, region2Length, "-Tranquillity- ");
    put(region3, region3Length, std::to_string(*record));
    put(stamp, stampLength, "1969-07-20");
}
