#pragma once

// Header lines that several formats share.

#include <optional>
#include <string>
#include <string_view>

#include "tempoline/Control.h"
#include "tempoline/LineSource.h"
#include "tempoline/Times.h"

namespace zg::tempoline {

/// The version in the first line, which has the first word of the kind in any letter case and then the
/// version. Throws for a file of another kind and for an unknown version.
std::string versionOf(LineSource& lines, InputKind kind);

/// A line with a count (text may follow after a hyphen), and that many comment lines after it.
void skipComments(LineSource& lines);

/// The number before a hyphen.
int countOf(LineSource& lines, std::string_view what);

/// "45.5N", "-45.5" and "97W" are degrees; "NONE" and "0" mean that the parameter is not used.
double degreesField(const LineSource& place, std::string_view field, std::string_view name);

/// Kilometres, without a letter: "NONE" means that the parameter is not used.
double kilometresField(const LineSource& place, std::string_view field, std::string_view name);

/// The true latitude of a polar map; throws for 0 and NONE, for which there is no polar map.
void needPolarParallel(const LineSource& place, const MapSetting& map);

/// The end given in a header, from year, month, day, hour and second, or from year, day of the year, hour and
/// second. It is used for a warning only; nothing if the fields are not a valid time.
std::optional<Seconds> promisedEnd(std::string_view year, std::string_view month, std::string_view day,
                                   std::string_view hour, std::string_view second);
std::optional<Seconds> promisedEnd(std::string_view year, std::string_view julianDay, std::string_view hour,
                                   std::string_view second);

/// Seconds east of Greenwich; throws for text that is not a zone.
Seconds zoneField(const LineSource& place, std::string_view key);

}  // namespace zg::tempoline
