#pragma once

// One file as the dialogs' header readers see it, and as the processor does.

#include <optional>
#include <string>

#include "base/Dates.h"
#include "formats/Kinds.h"

namespace zg {

/// What a side says of a file; times in the zone of the data.
struct Seen {
    bool reads = false;
    std::string message;            ///< why it does not
    std::string zone;               ///< key in upper case; "" for kinds without one
    std::string station;            ///< of kinds that name one in the header
    std::optional<DateTime> begin;  ///< of the data
    std::optional<DateTime> end;
};

Seen seenByDialog(InputKind kind, const std::string& text);

/// The station, the place and the map that are asked of the processor.
struct Asked {
    std::string station;
    double x = 0;
    double y = 0;
    std::string map = "NONE";  ///< NONE for cells of 3D.DAT, LL for degrees
};

Seen seenByProcessor(InputKind kind, const std::string& text, const Asked& asked);

}  // namespace zg
