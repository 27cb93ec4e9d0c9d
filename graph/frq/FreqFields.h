#pragma once

#include <cstddef>
#include <string_view>

#include "base/RunTimeError.h"

namespace zg {

/// The pieces of a text between separators, one at a time and without copies: a large file has hundreds of
/// thousands of rows. As with split, an empty text has no pieces.
class FreqFields {
 public:
    FreqFields(std::string_view text, char separator)
        : rest_(text), separator_(separator), exhausted_(text.empty()) {}

    /// The next piece; raises 9 after the last one.
    std::string_view next() {
        if (exhausted_) raise(ErrorNumber::SubscriptOutOfRange);
        // Pieces are a few characters long, for which a plain loop is faster than a library search.
        std::size_t length = 0;
        while (length < rest_.size() && rest_[length] != separator_) ++length;
        const std::string_view piece = rest_.substr(0, length);
        exhausted_ = length == rest_.size();
        rest_.remove_prefix(exhausted_ ? length : length + 1);
        return piece;
    }

    /// The text after the pieces returned so far.
    std::string_view rest() const { return rest_; }

 private:
    std::string_view rest_;
    char separator_;
    bool exhausted_;
};

/// Piece i, from 0; raises 9 if there is none.
inline std::string_view freqField(std::string_view text, char separator, std::size_t i) {
    FreqFields fields(text, separator);
    for (std::size_t passed = 0; passed < i; ++passed) fields.next();
    return fields.next();
}

}  // namespace zg
