#include "tempoline/Texts.h"

#include <charconv>
#include <cmath>

namespace zg::tempoline {

std::string shortText(double value) {
    char digits[400];
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed).ptr;
    return {digits, end};
}

std::string entryLine(const std::string& name, const std::string& value) {
    constexpr std::size_t column = 24;
    return "  " + name + std::string(name.size() < column ? column - name.size() : 1, ' ') + value;
}

std::string metresText(double metres) {
    std::string text = shortText(metres);
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
