#pragma once

// Numbers of a table, and what stands there for none.

#include <optional>
#include <string_view>

#include "windtable/TableLayout.h"

namespace zg {

/// Whether the text, without blanks at its ends, stands for a value that is missing: empty, "M", "NA", "NaN",
/// "null", "-" and the like in any case, and the numbers 999, 9999, -999 and -9999 however they are written.
bool isMissingText(std::string_view text);

/// The number of a value; not-a-number for a missing one, nothing for any other text.
std::optional<double> tableNumber(std::string_view text, const TableLayout& layout);

/// As tableNumber; a variable direction and the word for a calm have no degrees.
std::optional<double> tableDirection(std::string_view text, const TableLayout& layout);

}  // namespace zg
