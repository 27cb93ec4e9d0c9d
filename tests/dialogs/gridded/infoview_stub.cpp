// A library such as a user may put beside the program: it opens the file and returns its arguments.

#include <cstdint>
#include <cstdio>
#include <string>

#include "tests/dialogs/gridded/StubText.h"

extern "C" void infoview(const char* path, const std::int32_t* kind, const std::int32_t* one,
                         const std::int32_t* two, std::int32_t* IUTMZN, std::int32_t* year1, std::int32_t*,
                         std::int32_t* month1, std::int32_t* day1, std::int32_t* hour1, std::int32_t* second1,
                         std::int32_t* year2, std::int32_t*, std::int32_t* month2, std::int32_t* day2,
                         std::int32_t* hour2, std::int32_t* second2, std::int32_t* flag, float* RLAT0,
                         float* RLON0, float* XLAT1, float* XLAT2, float* FEAST, float* FNORTH, char* zone,
                         char* pmap, char* utmhem, char* datum, char* error, std::int32_t pathLength,
                         std::int32_t zoneLength, std::int32_t pmapLength, std::int32_t utmhemLength,
                         std::int32_t datumLength, std::int32_t errorLength) {
    const std::string name(path, static_cast<std::size_t>(pathLength));
    if (name.ends_with("bad.dat")) {
        *flag = 7;
        put(error, errorLength, "not mine: " + std::to_string(*kind));
        return;
    }
    std::FILE* const file = std::fopen(name.c_str(), "rb");
    if (file == nullptr) {
        *flag = 8;
        put(error, errorLength, "no such file");
        return;
    }
    std::fclose(file);
    *IUTMZN = *kind * 10 + *one + *two;
    *year1 = 2001;
    *month1 = 2;
    *day1 = 28;
    *hour1 = 23;
    *second1 = 3599;
    *year2 = 2002;
    *month2 = 1;
    *day2 = 1;
    *hour2 = 0;
    *second2 = 61;
    *RLAT0 = -40.5F;
    *RLON0 = 97.25F;
    *XLAT1 = 0;
    *XLAT2 = -0.5F;
    *FEAST = 100.5F;
    *FNORTH = -20;
    put(zone, zoneLength, "utc-0500");
    put(pmap, pmapLength, " lcc");
    put(utmhem, utmhemLength, "s");
    put(datum, datumLength, "nas-c");
}
