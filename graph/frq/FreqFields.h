#pragma once

#include <cstddef>
#include <string_view>

#include "base/RunTimeError.h"

namespace zg {

/// The pieces of a text between separators, one after the other and without a copy: the rows of a large file
/// are hundreds of thousands of them. As with split, an empty text has no piece at all.
class FreqFields {
 public:
    FreqFields(std::string_view text, char separator)
        : rest_(text), separator_(separator), exhausted_(text.empty()) {}

    /// Raises 9 after the last piece.
    std::string_view next() {
        if (exhausted_) raise(ErrorNumber::SubscriptOutOfRange);
        // Pieces are some characters long: a plain loop is done before a library search has begun.
        std::size_t length = 0;
        while (length < rest_.size() && rest_[length] != separator_) ++length;
        const std::string_view piece = rest_.substr(0, length);
        exhausted_ = length == rest_.size();
        rest_.remove_prefix(exhausted_ ? length : length + 1);
        return piece;
    }

    /// The text after the pieces given so far.
    std::string_view rest() const { return rest_; }

 private:
    std::string_view rest_;
    char separator_;
    bool exhausted_;
};

/// Piece i, from 0; raises 9 where there is none.
inline std::string_view freqField(std::string_view text, char separator, std::size_t i) {
    FreqFields fields(text, separator);
    for (std::size_t passed = 0; passed < i; ++passed) fields.next();
    return fields.next();
}

}  // namespace zg
