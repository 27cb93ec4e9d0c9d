#pragma once

// How a table of winds is laid out. What was found out about a file, or said of it, is kept as the values of
// keys of the control file, so that nothing is guessed twice.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

enum class TimeForm {
    YearFirst,   ///< 2016-01-09 15:30, ISO 8601, and the same without separators
    DayFirst,    ///< 09/01/2016 15:30
    MonthFirst,  ///< 01/09/2016 3:30 PM
    Parts,       ///< year, month, day, hour and minute in columns of their own; the last two may be missing
    Epoch,       ///< seconds (or milliseconds) since January 1, 1970 UTC
    Pattern,     ///< as a pattern such as "%d.%m.%y %H:%M" says
};

enum class WindUnit { MetresASecond, Knots, KilometresAnHour, MilesAnHour, TenthsOfMetresASecond };

/// Metres a second in one of the unit.
double metresASecondIn(WindUnit unit);

/// "M/S", "KNOTS", "KM/H", "MPH", "DM/S".
const char* wordOf(WindUnit unit);

/// The unit of such a word, in any case; none for any other text.
std::optional<WindUnit> unitOfWord(std::string_view word);

/// What separates the values of a line; this one means any run of blanks.
constexpr char blankDelimiter = ' ';

/// "COMMA", "SEMICOLON", "TAB", "BLANKS", or the character itself.
std::string delimiterWord(char delimiter);
std::optional<char> delimiterOfWord(std::string_view word);

/// "DMY", "MDY", "YMD", "PARTS", "EPOCH", or the pattern.
std::string timeFormWord(TimeForm form, const std::string& pattern);

/// Sets form and pattern; false for an invalid text.
bool setTimeForm(std::string_view word, TimeForm& form, std::string& pattern);

/// Columns are numbered from 1.
struct TableLayout {
    char delimiter = ',';
    bool decimalComma = false;
    std::size_t namesLine = 0;             ///< the line of the columns' names, from 1; 0 for none
    std::size_t headLines = 0;             ///< lines before the first record
    std::vector<std::size_t> timeColumns;  ///< one, date and time, or the parts
    std::size_t speedColumn = 0;
    std::size_t directionColumn = 0;
    WindUnit unit = WindUnit::MetresASecond;
    TimeForm timeForm = TimeForm::YearFirst;
    std::string timePattern;
    bool stampsEnd = false;             ///< a time is the end of its record rather than the begin
    std::int64_t recordSeconds = 3600;  ///< how long a record lasts
    std::string missing;                ///< a text that is missing beside those that always are; "" for none
    std::size_t stationColumn = 0;      ///< 0 if all records are read
    std::string station;                ///< else only those with this text there are
    std::optional<std::int64_t> zone;   ///< seconds east of Greenwich of times that name no zone themselves

    /// The last column that is needed.
    std::size_t columns() const;
};

/// A key of the control file and its value.
struct TableKey {
    std::string key;
    std::string value;
};

/// All keys of the layout, in the order in which they are written.
std::vector<TableKey> keysOf(const TableLayout& layout);

}  // namespace zg
