#pragma once

// Text is 8-bit bytes as read from files; nothing here depends on a locale.

#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// The text without the blanks (character 32 only, not tabs) at both ends; the view form points into its
/// argument.
std::string_view trimmed(std::string_view text);
std::string trim(std::string_view text);

/// Trimmed, with every inner run of blanks reduced to one.
std::string squeezeBlanks(std::string_view text);

/// Lower and upper case of ASCII letters; other bytes are unchanged.
std::string lcase(std::string_view text);
std::string ucase(std::string_view text);

/// The pieces of a split text, by position from 0.
class Pieces {
 public:
    explicit Pieces(std::vector<std::string_view> pieces) : pieces_(std::move(pieces)) {}

    /// Piece i; raises 9 if there is none.
    std::string_view operator[](std::size_t i) const;
    std::size_t size() const { return pieces_.size(); }

 private:
    std::vector<std::string_view> pieces_;
};

/// Splits at every separator; an empty separator gives the text as one piece. Empty pieces are kept; an empty
/// text has no pieces. The pieces point into the text.
Pieces split(std::string_view text, std::string_view separator);

/// The first n, the last n, and n characters from position start (1-based); a text that is too short is no
/// error.
std::string leftN(std::string_view text, std::size_t n);
std::string rightN(std::string_view text, std::size_t n);
std::string midN(std::string_view text, std::size_t start, std::size_t n);

/// Trimmed and without double quotes.
std::string removeQuotes(std::string_view text);

}  // namespace zg
