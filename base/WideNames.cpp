#include "base/WideNames.h"

#include <algorithm>
#include <cstdint>

#include "base/Encoding.h"

namespace zg {

namespace {

constexpr char16_t highFirst = 0xD800;
constexpr char16_t lowFirst = 0xDC00;
constexpr char16_t lowLast = 0xDFFF;

bool isHigh(char16_t unit) { return unit >= highFirst && unit < lowFirst; }
bool isLow(char16_t unit) { return unit >= lowFirst && unit <= lowLast; }

unsigned byteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

/// Three bytes for half a surrogate pair; valid UTF-8 has no such bytes.
bool beginsWithHalf(std::string_view bytes) {
    return bytes.size() >= 3 && byteAt(bytes, 0) == 0xEDU && byteAt(bytes, 1) >= 0xA0U &&
           byteAt(bytes, 1) <= 0xBFU && (byteAt(bytes, 2) & 0xC0U) == 0x80U;
}

char16_t threeBytes(std::string_view bytes) {
    return static_cast<char16_t>((byteAt(bytes, 0) & 0x0FU) << 12U | (byteAt(bytes, 1) & 0x3FU) << 6U |
                                 (byteAt(bytes, 2) & 0x3FU));
}

/// The code point of valid UTF-8.
void appendUnits(std::u16string& out, std::string_view utf8) {
    for (std::size_t i = 0; i < utf8.size();) {
        const unsigned first = byteAt(utf8, i);
        if (first < 0x80U) {
            out += static_cast<char16_t>(first);
            i += 1;
        } else if (first < 0xE0U) {
            out += static_cast<char16_t>((first & 0x1FU) << 6U | (byteAt(utf8, i + 1) & 0x3FU));
            i += 2;
        } else if (first < 0xF0U) {
            out += threeBytes(utf8.substr(i));
            i += 3;
        } else {
            const std::uint32_t rest = ((first & 0x07U) << 18U | (byteAt(utf8, i + 1) & 0x3FU) << 12U |
                                        (byteAt(utf8, i + 2) & 0x3FU) << 6U | (byteAt(utf8, i + 3) & 0x3FU)) -
                                       0x10000U;
            out += static_cast<char16_t>(highFirst + (rest >> 10U));
            out += static_cast<char16_t>(lowFirst + (rest & 0x3FFU));
            i += 4;
        }
    }
}

/// UTF-8 up to the next half of a pair, including it; false if anything else is found.
bool appendWithHalves(std::u16string& out, std::string_view part) {
    while (!part.empty()) {
        std::size_t end = 0;
        while (end < part.size() && !beginsWithHalf(part.substr(end))) ++end;
        if (!isUtf8(part.substr(0, end))) return false;
        appendUnits(out, part.substr(0, end));
        if (end < part.size()) out += threeBytes(part.substr(end));
        part.remove_prefix(std::min(end + 3, part.size()));
    }
    return true;
}

void appendPart(std::u16string& out, std::string_view part) {
    std::u16string units;
    if (!appendWithHalves(units, part)) {
        units.clear();
        appendUnits(units, toUtf8(part));
    }
    out += units;
}

void appendBytes(std::string& out, std::uint32_t character) {
    const auto later = [&out](std::uint32_t bits) { out += static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (character < 0x80U) {
        out += static_cast<char>(character);
    } else if (character < 0x800U) {
        out += static_cast<char>(0xC0U | character >> 6U);
        later(character);
    } else if (character < 0x10000U) {
        out += static_cast<char>(0xE0U | character >> 12U);
        later(character >> 6U);
        later(character);
    } else {
        out += static_cast<char>(0xF0U | character >> 18U);
        later(character >> 12U);
        later(character >> 6U);
        later(character);
    }
}

}  // namespace

std::u16string wideName(std::string_view bytes) {
    std::u16string units;
    for (;;) {
        const std::size_t end = std::min(bytes.find_first_of("/\\"), bytes.size());
        appendPart(units, bytes.substr(0, end));
        if (end == bytes.size()) return units;
        units += static_cast<char16_t>(bytes[end]);
        bytes.remove_prefix(end + 1);
    }
}

std::string narrowName(std::u16string_view units) {
    std::string bytes;
    for (std::size_t i = 0; i < units.size(); ++i) {
        std::uint32_t character = units[i];
        if (isHigh(units[i]) && i + 1 < units.size() && isLow(units[i + 1])) {
            character = 0x10000U + ((character & 0x3FFU) << 10U) + (units[i + 1] & 0x3FFU);
            ++i;
        }
        appendBytes(bytes, character);
    }
    return bytes;
}

}  // namespace zg
