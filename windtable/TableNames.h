#pragma once

// What the names of columns say.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "windtable/TableLayout.h"

namespace zg {

/// A column of winds: not of their deviations, maxima or gusts.
struct WindColumn {
    std::size_t column = 0;  ///< from 1
    std::string name;
    std::optional<double> height;  ///< metres, if the name states it
    std::optional<WindUnit> unit;  ///< the same
};

/// The columns that a line of names has.
struct TableNames {
    std::vector<std::size_t> time;  ///< one, date and time, or the parts from the year on
    bool timeIsParts = false;
    std::vector<WindColumn> speeds;
    std::vector<WindColumn> directions;
    std::size_t station = 0;  ///< the column that names the station of a record; 0 for none

    bool isComplete() const { return !time.empty() && !speeds.empty() && !directions.empty(); }
};

/// By the names alone, from column 1 on.
TableNames tableNamesOf(const std::vector<std::string>& names);

/// The unit that a text names, such as "Metres/Second", "kt" or "(km/h)"; nothing for any other text.
std::optional<WindUnit> speedUnitIn(std::string_view text);

/// A column of winds by its name, whatever that is.
WindColumn windColumn(std::size_t column, const std::string& name);

/// The highest, the first of equals; one without a height comes last.
const WindColumn& highestOf(const std::vector<WindColumn>& columns);

/// The nearest in height, the first of equals.
const WindColumn& nearestTo(const std::optional<double>& height, const std::vector<WindColumn>& columns);

}  // namespace zg
