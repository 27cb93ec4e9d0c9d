#include "tempoline/Texts.h"

#include <charconv>
#include <cmath>

namespace zg::tempoline {

std::string metresText(double metres) {
    char digits[400];
    const auto end = std::to_chars(digits, digits + sizeof digits, metres, std::chars_format::fixed).ptr;
    std::string text(digits, end);
    if (text.find('.') == std::string::npos) text += ".0";
    return text;
}

std::string fixedText(double value, int decimals) {
    char digits[400];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, decimals).ptr;
    return {digits, end};
}

std::string padded(std::string text, std::size_t width) {
    if (text.size() < width) text.insert(0, width - text.size(), ' ');
    return text;
}

std::string padded(std::int64_t value, std::size_t width) { return padded(std::to_string(value), width); }

}  // namespace zg::tempoline
