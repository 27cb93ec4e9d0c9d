#include "headers/TextHelpers.h"

#include <cmath>
#include <utility>

#include "base/Numbers.h"
#include "base/RunTimeError.h"

namespace zg {

namespace {

template <typename Fields>
int findColumn(std::string_view key, const Fields& fields) {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (trimmed(fields[i]) == key) return static_cast<int>(i);
    return -1;
}

double degreesOf(std::string_view text, char negativeSide) {
    text = trimmed(text);
    if (text.empty()) raise(ErrorNumber::InvalidProcedureCall);
    const double degrees = toDouble(text.substr(0, text.size() - 1));
    return text.back() == negativeSide ? 0.0 - degrees : degrees;
}

std::string textOfDegrees(double& value, const char* positiveSide, const char* negativeSide) {
    const char* side = value < 0 ? negativeSide : positiveSide;
    value = std::abs(value);
    return doubleText(value) + side;
}

}  // namespace

std::string SqueezeBlanks(std::string& text) {
    const std::string whole = std::exchange(text, {});
    return squeezeBlanks(whole);
}

std::string RemoveQuotes(std::string& text) {
    const std::string whole = std::exchange(text, {});
    return removeQuotes(whole);
}

int FindColumn(std::string_view key, const std::vector<std::string>& fields) {
    return findColumn(key, fields);
}

int FindColumn(std::string_view key, const Pieces& fields) { return findColumn(key, fields); }

double LatToNumber(std::string_view text) { return degreesOf(text, 'S'); }

double LonToNumber(std::string_view text) { return degreesOf(text, 'W'); }

std::string LatToText(double& value) { return textOfDegrees(value, "N", "S"); }

std::string LonToText(double& value) { return textOfDegrees(value, "E", "W"); }

}  // namespace zg
