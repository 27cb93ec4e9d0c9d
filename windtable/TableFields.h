#pragma once

// Splits a line of a table into its values.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

class TableFields {
 public:
    /// Splits the line into at most this many values; false for a quote that is not closed. A value in double
    /// quotes may contain the delimiter, and a doubled quote means one. Values are trimmed and valid as long
    /// as the line, and until the next call.
    bool cut(std::string_view line, char delimiter, std::size_t most);

    std::size_t size() const { return fields_.size(); }

    /// By column, from 1; "" for a column that the line does not have.
    std::string_view at(std::size_t column) const {
        return column >= 1 && column <= fields_.size() ? fields_[column - 1] : std::string_view();
    }

 private:
    void cutPlain(std::string_view line, char delimiter, std::size_t most);
    void cutBlanks(std::string_view line, std::size_t most);
    bool cutQuoted(std::string_view line, char delimiter, std::size_t most);

    std::vector<std::string_view> fields_;
    std::string unquoted_;
};

/// Trimmed of blanks and tabs.
std::string_view withoutBlanks(std::string_view text);

/// Whether a line has no values: only blanks and delimiters.
bool isEmptyLine(std::string_view line, char delimiter);

/// Without the byte order mark with which some programs begin a Unicode file.
std::string_view withoutByteOrderMark(std::string_view line);

}  // namespace zg
