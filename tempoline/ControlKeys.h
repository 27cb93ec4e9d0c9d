#pragma once

// The assignments of a control file by key, with conversions and their error messages.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/ControlLexer.h"

namespace zg::tempoline {

class ControlKeys {
 public:
    /// The assignments must outlive this object. Throws if a key that may appear once is given twice.
    explicit ControlKeys(const ControlText& text);

    /// "KEY = value" for each key whose default was used, in the order in which the keys were queried.
    const std::vector<std::string>& assumed() const { return assumed_; }

    /// Throws for an unknown key.
    void needKnownKeys() const;

    bool has(std::string_view key) const { return find(key) != nullptr; }
    const std::vector<Assignment>& all() const { return text_.assignments; }

    /// The value of a required key; throws if it is missing or empty.
    std::string text(std::string_view key);

    /// The value, or the default if the key is missing.
    std::string textOr(std::string_view key, std::string_view fallback);

    /// All values of a key, in file order; throws unless there are exactly that many.
    std::vector<std::string> texts(std::string_view key, std::size_t count, std::string_view countKey);

    int whole(std::string_view key, int lowest, int highest);
    int wholeOr(std::string_view key, int fallback, int lowest, int highest);
    int wholeOf(const Assignment& entry, int lowest, int highest);
    int wholeIn(std::string_view key, const std::string& item, int lowest, int highest);

    double numberOr(std::string_view key, double fallback);
    double number(std::string_view key, const std::string& item);
    double numberOf(const Assignment& entry, const std::string& item);

    /// Degrees, north and east positive: a number followed by a letter, or a signed number.
    double latitude(std::string_view key);
    double longitude(std::string_view key);

    /// The values, separated by commas or blanks.
    std::vector<std::string> items(std::string_view key, std::string_view fallback);

    /// The values, separated by commas.
    std::vector<std::string> itemsOf(const Assignment& entry);

    void needCount(std::string_view key, std::size_t found, std::size_t wanted, std::string_view countKey);

    /// Failures of a key name its line, or the line last passed to `at`.
    void at(const Assignment& entry) { current_ = &entry; }
    Failure failure(std::string_view key, const std::string& text) const;
    Failure failure(const Assignment& entry, const std::string& text) const;

 private:
    const Assignment* find(std::string_view key) const;
    void assume(std::string_view key, std::string_view value);
    double degrees(std::string_view key, char positive, char negative, double limit);

    const ControlText& text_;
    std::map<std::string, const Assignment*, std::less<>> first_;
    const Assignment* current_ = nullptr;
    std::vector<std::string> assumed_;
};

}  // namespace zg::tempoline
