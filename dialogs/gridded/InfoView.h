#pragma once

// What the wizards learn of a gridded file before it is processed: its period, time zone and projection. One
// operation answers; the program has its own, and a library beside the program may take its place.

#include <cstdint>
#include <functional>
#include <string>

#include "base/Dates.h"
#include "processing/ControlFile.h"

namespace zg {

/// Codes of the kinds of files, as the operation takes them.
enum class GridKind : std::int32_t { Ventos = 1, Fumarol = 2, M3d = 3 };

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
    std::int32_t errorFlag = 0;  ///< other than 0 for a file that is not of the expected form
    std::string errorText;
    std::int32_t IUTMZN = 0;
    float RLAT0 = 0;  ///< signed degrees, north and east positive, as the next three
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

/// Fills the answer, which it gets empty. Raises a RunTimeError where there is no answer at all.
using InfoViewOperation = std::function<void(const std::string& path, GridKind kind, InfoViewResult& result)>;

/// The operation, what it last answered, and that answer as the wizards use it.
struct ModInfoViewDLL {
    InfoViewOperation infoview;
    InfoViewResult result;
    DateTime HeaderStartTime;  ///< 0 when it is not known, as the next
    DateTime HeaderEndTime;
    std::string HeaderTimeZone;
};

extern ModInfoViewDLL modInfoViewDLL;

/// Asks for a file's header and takes it into modInfoViewDLL and into the projection record. An operation
/// that fails as such leaves everything empty and is not told. Raises 13 for an answer with an impossible
/// time.
void ReadGridHeader(const std::string& path, GridKind kind);

/// The projection that the last answer tells, as the projection record holds it.
ProjectionRecord nativeProjection();

}  // namespace zg
