#include "tempoline/Fields.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "tempoline/Wind.h"

namespace zg::tempoline {

namespace {

bool isMissingMark(std::string_view field) {
    return field.empty() || field.find_first_not_of('*') == std::string_view::npos;
}

std::string_view withoutPlus(std::string_view field) {
    if (field.size() > 1 && field[0] == '+' && field[1] != '-') field.remove_prefix(1);
    return field;
}

}  // namespace

std::size_t splitBlanks(std::string_view line, std::span<std::string_view> fields) {
    const char* at = line.data();
    const char* const end = at + line.size();
    std::size_t count = 0;
    while (count < fields.size()) {
        while (at != end && isBlank(*at)) ++at;
        if (at == end) break;
        const char* const begin = at;
        while (at != end && !isBlank(*at)) ++at;
        fields[count++] = {begin, static_cast<std::size_t>(at - begin)};
    }
    return count;
}

std::size_t splitCommas(std::string_view line, std::span<std::string_view> fields) {
    std::size_t count = 0;
    while (count < fields.size()) {
        const std::size_t comma = line.find(',');
        fields[count++] = line.substr(0, comma);
        if (comma == std::string_view::npos) break;
        line.remove_prefix(comma + 1);
    }
    return count;
}

std::string_view stripped(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

std::optional<double> valueOf(std::string_view field) {
    const std::string_view text = withoutPlus(stripped(field));
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc() && end == text.data() + text.size())
        return std::isfinite(value) ? value : missingValue;
    if (error == std::errc::result_out_of_range && end == text.data() + text.size()) return missingValue;
    if (isMissingMark(text)) return missingValue;
    return {};
}

std::optional<int> wholeOf(std::string_view field) {
    const std::string_view text = withoutPlus(stripped(field));
    int value = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    if (error != std::errc()) return {};
    if (end == last) return value;
    if (*end != '.') return {};
    for (const char* at = end + 1; at != last; ++at) {
        if (*at != '0') return {};
    }
    return value;
}

}  // namespace zg::tempoline
