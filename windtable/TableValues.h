#pragma once

// Numbers in a table, and the marks of a missing value.

#include <optional>
#include <string_view>

#include "windtable/TableLayout.h"

namespace zg {

/// Whether the trimmed text means a missing value: empty, "M", "NA", "NaN", "null", "-" and the like in any
/// letter case, and the numbers 999, 9999, -999 and -9999 in any form.
bool isMissingText(std::string_view text);

/// The number of a value; not-a-number for a missing one, nothing for any other text.
std::optional<double> tableNumber(std::string_view text, const TableLayout& layout);

/// Like tableNumber; a variable direction and the word for a calm have no degrees.
std::optional<double> tableDirection(std::string_view text, const TableLayout& layout);

}  // namespace zg
