#pragma once

// The header of an UP.DAT file, the soundings of an upper-air station.

#include <string>

#include "base/Dates.h"
#include "headers/HeaderSource.h"

namespace zg {

struct UpHeader {
    bool isUp = false;     ///< the first line is of such a file
    std::string version;   ///< "2.0" or "2.1"; "" for any other, and then nothing else is read
    std::string timeZone;  ///< a key; "UTC+0000" in version 2.0
    DateTime begin;        ///< an hour earlier than written in version 2.0
    DateTime end;
    TimeOfDay beginFields;  ///< minute and second as in the file, 0 in version 2.0
    TimeOfDay endFields;
    std::string station;
};

/// Raises the same errors as readSurfHeader.
UpHeader readUpHeader(HeaderSource& source);

}  // namespace zg
