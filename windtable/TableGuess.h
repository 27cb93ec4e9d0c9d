#pragma once

// Finds out how a table of winds is laid out, by going once through the file.

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "windtable/TableLayout.h"

namespace zg {

/// What is known in advance; everything else is detected. Columns by their names (in any case), or by their
/// numbers if no column has such a name.
struct TableWishes {
    std::string time;  ///< also two names with a comma between them: of the date and of the time of day
    std::string speed;
    std::string direction;
    std::optional<WindUnit> unit;
    std::string timeForm;  ///< as setTimeForm takes it
    std::optional<char> delimiter;
    std::string missing;
    bool stampsEnd = false;
    std::string station;  ///< whose records are read if the table has several stations; else only a name
};

struct TableFacts {
    TableLayout layout;
    bool isIsdLite = false;
    std::string timeName;
    std::string speedName;
    std::string directionName;
    std::vector<std::string> otherSpeeds;  ///< those that were not chosen
    std::vector<std::string> stations;     ///< of a table with several whose times do not overlap
    std::string onlyStation;               ///< of a table whose column of stations names one
    std::optional<double> height;          ///< metres, if a name states it
    std::int64_t begin = 0;                ///< of the first record, by the clock of the file
    std::int64_t end = 0;                  ///< of the last record
    std::optional<std::int64_t> zone;      ///< of the file's clock, if the file states it
    std::int64_t records = 0;
};

/// "path:line: column: what is wrong".
class TableProblem : public std::runtime_error {
 public:
    TableProblem(const std::string& text, bool wrongWish)
        : std::runtime_error(text), isWrongWish(wrongWish) {}

    bool isWrongWish;  ///< a requested column does not exist
};

/// Throws a TableProblem for a file that is no table of winds, and a RunTimeError for one that cannot be
/// read.
TableFacts guessTable(const std::string& path, const TableWishes& wishes);

/// Whether the first lines of a file hold names of columns with a time, a wind speed and a wind direction.
/// Raises the error of a file that cannot be read.
bool hasTableHead(const std::string& path);

/// What was taken, in one line.
std::string takenText(const TableFacts& facts);

/// Whether the line is an hour of ISD-Lite: twelve whole numbers, the first four of them a moment.
bool isIsdLiteLine(std::string_view line);

}  // namespace zg
