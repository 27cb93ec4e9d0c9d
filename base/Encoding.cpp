#include "base/Encoding.h"

#include <array>
#include <cstdint>
#include <optional>

namespace zg {

namespace {

/// Characters of windows-1252 from 0x80 to 0x9F; the five unassigned bytes map to themselves.
constexpr std::array<std::uint16_t, 32> windowsCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Takes one character off the front of the bytes; nothing if they are not valid UTF-8.
std::optional<std::uint32_t> takeCharacter(std::string_view& bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    const std::size_t length = first < 0x80   ? 1
                               : first < 0xC2 ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    if (length == 0 || bytes.size() < length) return std::nullopt;
    std::uint32_t character = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0U) != 0x80U) return std::nullopt;
        character = character << 6U | (next & 0x3FU);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (overlong || surrogate || character > 0x10FFFF) return std::nullopt;
    bytes.remove_prefix(length);
    return character;
}

void appendUtf8(std::string& out, std::uint32_t character) {
    if (character < 0x80) {
        out.push_back(static_cast<char>(character));
    } else if (character < 0x800) {
        out.push_back(static_cast<char>(0xC0U | character >> 6U));
        out.push_back(static_cast<char>(0x80U | (character & 0x3FU)));
    } else {
        out.push_back(static_cast<char>(0xE0U | character >> 12U));
        out.push_back(static_cast<char>(0x80U | (character >> 6U & 0x3FU)));
        out.push_back(static_cast<char>(0x80U | (character & 0x3FU)));
    }
}

std::optional<char> windowsByte(std::uint32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (std::size_t i = 0; i < windowsCharacters.size(); ++i)
        if (windowsCharacters[i] == character) return static_cast<char>(0x80 + i);
    return std::nullopt;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty())
        if (!takeCharacter(bytes)) return false;
    return true;
}

std::string toUtf8(std::string_view bytes) {
    if (isUtf8(bytes)) return std::string(bytes);
    std::string out;
    out.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(out, byte >= 0x80 && byte < 0xA0 ? windowsCharacters[byte - 0x80U] : byte);
    }
    return out;
}

std::string fromUtf8(std::string_view utf8) {
    std::string out;
    for (std::string_view rest = utf8; !rest.empty();) {
        const auto character = takeCharacter(rest);
        const auto byte = character ? windowsByte(*character) : std::nullopt;
        if (!byte) return std::string(utf8);
        out.push_back(*byte);
    }
    // Some sequences of windows-1252 bytes are also valid UTF-8 and would be read back as other characters.
    return toUtf8(out) == utf8 ? out : std::string(utf8);
}

}  // namespace zg
