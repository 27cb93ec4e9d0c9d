#include "formats/ZoneKeys.h"

#include <cstdlib>

#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr std::int64_t secondsOfZoneHour = 3600;
constexpr std::int64_t largestOffset = 14 * secondsOfZoneHour;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::optional<std::int64_t> zoneOffset(std::string_view key) {
    const std::string text = ucase(trimmed(key));
    if (text.size() != 8 || text.compare(0, 3, "UTC") != 0 || (text[3] != '+' && text[3] != '-')) return {};
    for (std::size_t i = 4; i < 8; ++i) {
        if (!isDigit(text[i])) return {};
    }
    const int hours = (text[4] - '0') * 10 + (text[5] - '0');
    const int minutes = (text[6] - '0') * 10 + (text[7] - '0');
    const std::int64_t offset = hours * secondsOfZoneHour + std::int64_t{minutes} * 60;
    if (minutes > 59 || offset > largestOffset) return {};
    return text[3] == '-' ? -offset : offset;
}

std::string zoneText(std::int64_t offset) {
    const std::int64_t minutes = std::abs(offset) / 60;
    return std::string(offset < 0 ? "UTC-" : "UTC+") + format00(static_cast<double>(minutes / 60)) +
           format00(static_cast<double>(minutes % 60));
}

}  // namespace zg
