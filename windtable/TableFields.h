#pragma once

// A line of a table cut into its values.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

class TableFields {
 public:
    /// Cuts the line, but not more than so many values: true but for a quote that is not closed. A value in
    /// double quotes may hold the delimiter, and a doubled quote is one. Values have no blanks at their ends
    /// and live as long as the line, and until the next call.
    bool cut(std::string_view line, char delimiter, std::size_t most);

    std::size_t size() const { return fields_.size(); }

    /// By column, from 1; "" for one that the line does not have.
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

/// Without blanks and tabs at both ends.
std::string_view withoutBlanks(std::string_view text);

/// A line without any value: nothing but blanks and delimiters.
bool isEmptyLine(std::string_view line, char delimiter);

/// Without the mark that some programs begin a file of Unicode text with.
std::string_view withoutByteOrderMark(std::string_view line);

}  // namespace zg
