#pragma once

// The assignments of a control file by key, with the conversions and their failures.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/ControlLexer.h"

namespace zg::tempoline {

class ControlKeys {
 public:
    /// The text must outlive it. Throws for a key given twice that may stand once.
    explicit ControlKeys(const ControlText& text);

    /// "KEY = value" for each key whose default was taken, in the order in which they were asked for.
    const std::vector<std::string>& assumed() const { return assumed_; }

    /// Throws for a key that there is not.
    void needKnownKeys() const;

    bool has(std::string_view key) const { return find(key) != nullptr; }
    const std::vector<Assignment>& all() const { return text_.assignments; }

    /// The value of a key that must be there, and must not be empty.
    std::string text(std::string_view key);

    /// The value, or the default where the key is not there.
    std::string textOr(std::string_view key, std::string_view fallback);

    /// All values of a key, in their order; throws unless there are so many.
    std::vector<std::string> texts(std::string_view key, std::size_t count, std::string_view countKey);

    int whole(std::string_view key, int lowest, int highest);
    int wholeOr(std::string_view key, int fallback, int lowest, int highest);
    int wholeOf(const Assignment& entry, int lowest, int highest);
    int wholeIn(std::string_view key, const std::string& item, int lowest, int highest);

    double numberOr(std::string_view key, double fallback);
    double number(std::string_view key, const std::string& item);
    double numberOf(const Assignment& entry, const std::string& item);

    /// Degrees, north and east positive: a number with a letter behind it, or a signed number.
    double latitude(std::string_view key);
    double longitude(std::string_view key);

    /// The values between commas or blanks.
    std::vector<std::string> items(std::string_view key, std::string_view fallback);

    /// The values between commas.
    std::vector<std::string> itemsOf(const Assignment& entry);

    void needCount(std::string_view key, std::size_t found, std::size_t wanted, std::string_view countKey);

    /// Failures of a key name the line where it stands, or the last line looked at by `at`.
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
