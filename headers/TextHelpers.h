#pragma once

// Text of headers and fields: blanks, quotes, columns, latitudes and longitudes.

#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"

namespace zg {

/// Trimmed, with single blanks between the words. The argument is emptied.
std::string SqueezeBlanks(std::string& text);

/// Trimmed and without double quotes. The argument is emptied.
std::string RemoveQuotes(std::string& text);

/// Index of the first field that, when trimmed, equals the key; -1 if there is none.
int FindColumn(std::string_view key, const std::vector<std::string>& fields);
int FindColumn(std::string_view key, const Pieces& fields);

/// "45.5N" is 45.5 and "45.5S" is -45.5: the number before the last character, negated for "S" (or "W").
/// Raises 13 if that is not a number, 5 for an empty text.
double LatToNumber(std::string_view text);
double LonToNumber(std::string_view text);

/// The absolute value followed by "N" or, below 0, "S" ("E" or "W"). The argument becomes its absolute value.
std::string LatToText(double& value);
std::string LonToText(double& value);

}  // namespace zg
