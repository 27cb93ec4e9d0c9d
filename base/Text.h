#pragma once

// Text is 8-bit bytes as read from files; nothing here knows of a locale.

#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// Without the blanks (character 32 only, not tabs) at both ends; the view form points into its argument.
std::string_view trimmed(std::string_view text);
std::string trim(std::string_view text);

/// Trimmed, and every inner run of blanks made one blank.
std::string squeezeBlanks(std::string_view text);

/// Lower and upper case of the ASCII letters; other bytes stay.
std::string lcase(std::string_view text);
std::string ucase(std::string_view text);

/// The pieces of a split text, by position from 0.
class Pieces {
 public:
    explicit Pieces(std::vector<std::string_view> pieces) : pieces_(std::move(pieces)) {}

    /// Piece i; raises 9 where there is none.
    std::string_view operator[](std::size_t i) const;
    std::size_t size() const { return pieces_.size(); }

 private:
    std::vector<std::string_view> pieces_;
};

/// Splits at every separator; an empty one gives the text as one piece. Empty pieces are kept; an empty text
/// has no piece at all. The pieces point into the text.
Pieces split(std::string_view text, std::string_view separator);

/// The first n, the last n, and n characters from position start (1-based); tolerant of short texts.
std::string leftN(std::string_view text, std::size_t n);
std::string rightN(std::string_view text, std::size_t n);
std::string midN(std::string_view text, std::size_t start, std::size_t n);

/// Trimmed and without any double quote.
std::string removeQuotes(std::string_view text);

}  // namespace zg
