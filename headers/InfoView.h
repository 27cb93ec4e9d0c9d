#pragma once

// What the wizards need to know about a gridded file before processing: its period, time zone and projection.
// One operation provides it; the program has its own, and a library in its directory may replace that.

#include <cstdint>
#include <functional>
#include <string>

#include "base/Dates.h"
#include "formats/Kinds.h"

namespace zg {

/// The answer for one file. Times are in the zone of the data; seconds are those within the hour.
struct InfoViewResult {
    struct Time {
        std::int32_t year = 0;
        std::int32_t month = 0;
        std::int32_t day = 0;
        std::int32_t hour = 0;
        std::int32_t seconds = 0;
    };
    Time first;
    Time last;
    std::int32_t errorFlag = 0;  ///< not 0 for a file that is not of the expected format
    std::string errorText;
    std::int32_t IUTMZN = 0;
    float RLAT0 = 0;  ///< signed degrees, north and east positive, as are the next three
    float RLON0 = 0;
    float XLAT1 = 0;
    float XLAT2 = 0;
    float FEAST = 0;  ///< km
    float FNORTH = 0;
    std::string timeZone;  ///< such as "UTC+0000"
    std::string PMAP;
    std::string UTMHEM;
    std::string DATUM;
};

/// Fills in the answer, which is initially empty, for a file of the kind Ventos or M3d. Raises a RunTimeError
/// if there is no answer at all.
using InfoViewOperation =
    std::function<void(const std::string& path, InputKind kind, InfoViewResult& result)>;

/// The operation, its last answer, and that answer in the form for the wizards.
struct ModInfoViewDLL {
    InfoViewOperation infoview;
    InfoViewResult result;
    DateTime HeaderStartTime;  ///< 0 if unknown, as is the next
    DateTime HeaderEndTime;
    std::string HeaderTimeZone;
};

extern ModInfoViewDLL modInfoViewDLL;

/// Reads a file's header into modInfoViewDLL. If the operation itself fails, everything is left empty without
/// a message. Raises 13 for an answer with an impossible time.
void ReadGridHeader(const std::string& path, InputKind kind);

}  // namespace zg
