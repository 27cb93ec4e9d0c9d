#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// A number at the beginning of a text, by the offsets of its parts.
struct NumberShape {
    std::size_t length = 0;  ///< sign and exponent included; 0 if the text does not start with a number
    std::size_t exponentAt = std::string_view::npos;  ///< the E or D, if there is one
};

NumberShape numberAtStart(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) ++i, ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && isDigit(text[i])) ++i, ++digits;
    }
    if (digits == 0) return {};
    std::size_t j = i;
    if (j < text.size() && (text[j] == 'E' || text[j] == 'e' || text[j] == 'D' || text[j] == 'd')) {
        ++j;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
        const std::size_t exponentFrom = j;
        while (j < text.size() && isDigit(text[j])) ++j;
        if (j > exponentFrom) return {j, i};
    }
    return {i, std::string_view::npos};
}

/// Whether a number out of range is too large rather than too small, from the position of its first non-zero
/// digit and its exponent. The library reports both cases alike.
bool isBeyondLargeEnd(std::string_view number, std::size_t exponentAt) {
    const std::string_view mantissa = number.substr(0, exponentAt);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const std::int64_t place = first < point ? point - first : point + 1 - first;
    if (exponentAt == std::string_view::npos) return place > 0;

    std::string_view digits = number.substr(exponentAt + 1);
    if (digits.front() == '+') digits.remove_prefix(1);
    std::int64_t exponent = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return digits.front() != '-';
    return exponent > -place;
}

/// The value of a text that is one number of this shape. A number too small is 0; one too large gives
/// nothing.
template <typename Real>
std::optional<Real> parseNumber(std::string_view text, const NumberShape& shape) {
    std::string withE;
    if (shape.exponentAt != std::string_view::npos && (text[shape.exponentAt] | 0x20) == 'd') {
        withE = text;
        withE[shape.exponentAt] = 'E';
        text = withE;
    }
    const std::size_t plus = text.front() == '+' ? 1 : 0;
    Real value = 0;
    const auto read = std::from_chars(text.data() + plus, text.data() + text.size(), value);
    if (read.ec != std::errc::result_out_of_range) return value;
    if (isBeyondLargeEnd(text, shape.exponentAt)) return std::nullopt;
    return Real(0);
}

/// Removes commas before the decimal point; a comma anywhere else means that the text is not a number.
bool dropGroupingCommas(std::string_view text, std::string& plain) {
    const std::size_t wholeEnd = std::min(text.find_first_of(".eEdD"), text.size());
    if (text.find(',', wholeEnd) != std::string_view::npos) return false;
    bool digitSeen = false;
    for (const char c : text) {
        if (c == ',') {
            if (!digitSeen) return false;
            continue;
        }
        digitSeen = digitSeen || isDigit(c);
        plain.push_back(c);
    }
    return true;
}

/// The whole text as a number; raises the same errors as toDouble.
template <typename Real>
Real wholeNumber(std::string_view text) {
    text = trimmed(text);
    std::string plain;
    if (text.find(',') != std::string_view::npos) {
        if (!dropGroupingCommas(text, plain)) raise(ErrorNumber::TypeMismatch);
        text = plain;
    }
    const NumberShape shape = numberAtStart(text);
    if (shape.length == 0 || shape.length != text.size()) raise(ErrorNumber::TypeMismatch);
    const std::optional<Real> value = parseNumber<Real>(text, shape);
    if (!value) raise(ErrorNumber::Overflow);
    return *value;
}

std::string generalText(double value, int significant) {
    if (value == 0) return "0";
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";

    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::scientific, significant - 1);
    std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    std::string sign;
    if (text.front() == '-') {
        sign = "-";
        text.remove_prefix(1);
    }
    const std::size_t e = text.find('e');
    std::string digits(1, text[0]);
    digits.append(text.substr(2, e - 2));
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
    std::string_view exponentText = text.substr(e + 1);
    if (exponentText.front() == '+') exponentText.remove_prefix(1);
    int exponent = 0;
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);

    const int count = static_cast<int>(digits.size());
    const int decimals = count - 1 - exponent;
    if (exponent >= significant || (exponent < 0 && decimals > significant)) {
        std::string out = sign + digits.substr(0, 1);
        if (count > 1) out += "." + digits.substr(1);
        out += exponent < 0 ? "E-" : "E+";
        const std::string magnitude = std::to_string(std::abs(exponent));
        return out + (magnitude.size() < 2 ? "0" : "") + magnitude;
    }
    if (exponent < 0) return sign + "0." + std::string(static_cast<std::size_t>(-exponent) - 1, '0') + digits;
    if (decimals <= 0) return sign + digits + std::string(static_cast<std::size_t>(-decimals), '0');
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    return sign + digits.substr(0, whole) + "." + digits.substr(whole);
}

}  // namespace

double val(std::string_view text) {
    std::string packed;
    if (text.find_first_of(" \t\r\n") != std::string_view::npos) {
        for (const char c : text)
            if (c != ' ' && c != '\t' && c != '\r' && c != '\n') packed.push_back(c);
        text = packed;
    }
    const NumberShape shape = numberAtStart(text);
    if (shape.length == 0) return 0;
    const std::optional<double> value = parseNumber<double>(text.substr(0, shape.length), shape);
    if (value) return *value;
    return text.front() == '-' ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
}

double toDouble(std::string_view text) { return wholeNumber<double>(text); }

float toSingle(double value) {
    // Values up to half a step above the largest single round down to it.
    constexpr double roundsBeyond = 0x1.ffffffp127;
    if (!(std::abs(value) < roundsBeyond)) raise(ErrorNumber::Overflow);
    return static_cast<float>(value);
}

// Not by way of a double: rounding twice may miss the nearest single.
float toSingle(std::string_view text) { return wholeNumber<float>(text); }

std::int16_t toInt16(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) raise(ErrorNumber::Overflow);
    return static_cast<std::int16_t>(rounded);
}

std::int32_t toInt32(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) raise(ErrorNumber::Overflow);
    return static_cast<std::int32_t>(rounded);
}

std::int16_t toInt16(std::string_view text) { return toInt16(toDouble(text)); }

std::int32_t toInt32(std::string_view text) { return toInt32(toDouble(text)); }

double roundHalfEven(double value, int decimals) {
    if (decimals == 0) return std::nearbyint(value);
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    // From 2^52 on a double has no fraction, so there is nothing to round (nor is there in NaN or infinity).
    if (!(std::abs(scaled) < 4503599627370496.0)) return value;
    return std::nearbyint(scaled) / scale;
}

std::string singleText(float value) { return generalText(static_cast<double>(value), 7); }

std::string doubleText(double value) { return generalText(value, 15); }

std::string boolText(bool value) { return value ? "True" : "False"; }

bool toBool(std::string_view text) {
    const std::string word = lcase(trimmed(text));
    if (word == "true") return true;
    if (word == "false") return false;
    return toDouble(word) != 0;
}

std::string format00(double value) {
    if (!(std::abs(value) < 1e15)) raise(ErrorNumber::Overflow);
    const auto rounded = static_cast<std::int64_t>(std::round(value));
    const std::string digits = std::to_string(std::abs(rounded));
    std::string text = rounded < 0 ? "-" : "";
    if (digits.size() < 2) text += '0';
    return text + digits;
}

std::string format00(std::string_view text) { return format00(toDouble(text)); }

std::string formatScientific(double value) {
    if (value == 0) value = 0;  // -0 too
    std::array<char, 64> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, 2);
    std::string text(buffer.data(), result.ptr);
    return ucase(text);
}

std::int32_t idiv(std::int32_t dividend, std::int32_t divisor) {
    if (divisor == 0) raise(ErrorNumber::DivisionByZero);
    if (divisor == -1 && dividend == std::numeric_limits<std::int32_t>::min()) raise(ErrorNumber::Overflow);
    return dividend / divisor;
}

std::int32_t imod(std::int32_t dividend, std::int32_t divisor) {
    if (divisor == 0) raise(ErrorNumber::DivisionByZero);
    if (divisor == -1) return 0;
    return dividend % divisor;
}

double intFloor(double value) { return std::floor(value); }

}  // namespace zg
