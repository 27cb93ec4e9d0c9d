#include "windtable/TableValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "base/Text.h"

namespace zg {

namespace {

constexpr double notThere = std::numeric_limits<double>::quiet_NaN();
constexpr std::array<std::string_view, 16> missingWords = {"",     "M",    "NA",   "N/A",     "#N/A", "NAN",
                                                           "NULL", "NONE", "NIL",  "MISSING", "-",    "--",
                                                           "---",  "INF",  "-INF", "?"};
constexpr std::array<double, 8> missingCodes = {999, 9999, -999, -9999, 999.9, 9999.9, -999.9, -9999.9};
constexpr std::size_t longestNumber = 64;

/// Nothing for a number that is not finite.
std::optional<double> plainNumber(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return {};
    return value;
}

std::optional<double> numberWithComma(std::string_view text) {
    std::array<char, longestNumber> point{};
    if (text.size() > point.size()) return {};
    std::replace_copy(text.begin(), text.end(), point.begin(), ',', '.');
    return plainNumber({point.data(), text.size()});
}

bool isMissingWord(std::string_view text) {
    if (text.size() > 7) return false;
    const std::string word = ucase(text);
    return std::find(missingWords.begin(), missingWords.end(), word) != missingWords.end();
}

bool isMissingCode(double value) {
    return std::find(missingCodes.begin(), missingCodes.end(), value) != missingCodes.end();
}

}  // namespace

bool isMissingText(std::string_view text) {
    const std::optional<double> value = plainNumber(text);
    return value ? isMissingCode(*value) : isMissingWord(text);
}

std::optional<double> tableNumber(std::string_view text, const TableLayout& layout) {
    if (!layout.missing.empty() && text == layout.missing) return notThere;
    const std::optional<double> value = layout.decimalComma ? numberWithComma(text) : plainNumber(text);
    if (value) return isMissingCode(*value) ? notThere : value;
    return isMissingWord(text) ? std::optional(notThere) : std::nullopt;
}

std::optional<double> tableDirection(std::string_view text, const TableLayout& layout) {
    const std::optional<double> value = tableNumber(text, layout);
    if (value) return value;
    const std::string word = ucase(text.substr(0, 9));
    const bool isNone = word == "VRB" || word == "VAR" || word == "VARIABLE" || word == "CALM";
    return isNone ? std::optional(notThere) : std::nullopt;
}

}  // namespace zg
