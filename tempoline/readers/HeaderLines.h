#pragma once

// What the headers of several kinds of files have in common.

#include <optional>
#include <string>
#include <string_view>

#include "tempoline/Control.h"
#include "tempoline/LineSource.h"
#include "tempoline/Times.h"

namespace zg::tempoline {

/// The first line, cut at blanks: the name of the kind in any case, and the version behind it.
std::string versionOf(LineSource& lines, std::string_view kind);

/// A line with a count (text may follow behind a hyphen) and so many lines of comment.
void skipComments(LineSource& lines);

/// The number before a hyphen.
int countOf(LineSource& lines, std::string_view what);

/// "45.5N", "-45.5" and "97W" are degrees; "NONE" and "0" stand for what is not used.
double degreesField(const LineSource& place, std::string_view field, std::string_view name);

/// Kilometres, which have no letter: "NONE" stands for what is not used.
double kilometresField(const LineSource& place, std::string_view field, std::string_view name);

/// What a polar map is true at; throws for 0 and NONE, at which no polar map is drawn.
void needPolarParallel(const LineSource& place, const MapSetting& map);

/// The end that a header promises, from year, month, day, hour and second, or from year, day of the year,
/// hour and second. Only a warning hangs on it, so that it is nothing where the fields are no moment.
std::optional<Seconds> promisedEnd(std::string_view year, std::string_view month, std::string_view day,
                                   std::string_view hour, std::string_view second);
std::optional<Seconds> promisedEnd(std::string_view year, std::string_view julianDay, std::string_view hour,
                                   std::string_view second);

/// Seconds east of Greenwich; throws for what is no key of a zone.
Seconds zoneField(const LineSource& place, std::string_view key);

}  // namespace zg::tempoline
