#pragma once

// The lines before the records of a table.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "windtable/TableGuess.h"
#include "windtable/TableNames.h"

namespace zg {

/// The chosen columns. Names are empty for a table without them.
struct TableHead {
    char delimiter = ',';
    bool hasNames = false;
    std::vector<std::size_t> timeColumns;
    bool timeIsParts = false;
    std::string timeName;
    WindColumn speed;
    WindColumn direction;
    std::vector<std::string> otherSpeeds;
    std::size_t stationColumn = 0;  ///< 0 for none
    std::string stationName;
};

/// Examines the first lines of a file one by one.
class TableHeadSearch {
 public:
    explicit TableHeadSearch(const TableWishes& wishes) : wishes_(wishes) {}

    /// The head, if the line has the names, or is the first record of a table whose columns were requested by
    /// their numbers.
    std::optional<TableHead> look(std::string_view line, std::size_t lineNumber);

    /// The problem to report if nothing was found: the best line and its text.
    std::size_t bestLine() const { return bestLine_; }
    std::string wanting() const;

 private:
    std::optional<TableHead> lookBy(char delimiter, std::string_view line, std::size_t lineNumber);
    std::optional<TableHead> headOfNumbers(char delimiter, const std::vector<std::string>& values) const;
    std::vector<std::size_t> wishedTime(const std::vector<std::string>& names) const;
    void keepBest(const TableNames& found, const std::vector<std::string>& names, std::size_t lineNumber);

    const TableWishes& wishes_;
    std::size_t bestLine_ = 0;
    int bestParts_ = 0;
    std::string bestText_;
};

}  // namespace zg
