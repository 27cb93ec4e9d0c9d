#include "export/Palettes.h"

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr Colour hex(unsigned value) { return rgb(value >> 16U, value >> 8U & 0xFFU, value & 0xFFU); }

/// One pair of hexadecimal digits in "#rrggbb".
unsigned hexPair(std::string_view text) {
    unsigned value = 0;
    for (const char c : text) {
        const std::size_t digit = std::string_view("0123456789abcdef").find(c);
        if (digit == std::string_view::npos) raise(ErrorNumber::TypeMismatch);
        value = value * 16 + static_cast<unsigned>(digit);
    }
    return value;
}

unsigned partOf(std::string_view text) {
    const std::int32_t value = toInt32(text);
    if (value < 0 || value > 255) raise(ErrorNumber::TypeMismatch);
    return static_cast<unsigned>(value);
}

Colour colourOf(const std::string& text) {
    if (text.size() == 7 && text.front() == '#')
        return rgb(hexPair(text.substr(1, 2)), hexPair(text.substr(3, 2)), hexPair(text.substr(5, 2)));
    const Pieces parts = split(text, ",");
    if (parts.size() != 3) raise(ErrorNumber::TypeMismatch);
    return rgb(partOf(parts[0]), partOf(parts[1]), partOf(parts[2]));
}

}  // namespace

const std::vector<NamedPalette>& palettes() {
    // Viridis and cividis as published for the R package viridisLite (Garnier and others), in six steps; the
    // colours of Okabe and Ito, "Color Universal Design", 2008, ordered so that neighbours differ most; greys
    // in equal steps of lightness.
    static const std::vector<NamedPalette> all = {
        {"factory",
         {hex(0xff0000), hex(0x00ff00), hex(0x0000ff), hex(0xffff00), hex(0x00ffff), hex(0x000000)}},
        {"viridis",
         {hex(0x440154), hex(0x414487), hex(0x2a788e), hex(0x22a884), hex(0x7ad151), hex(0xfde725)}},
        {"cividis",
         {hex(0x00204d), hex(0x31446b), hex(0x666970), hex(0x958f78), hex(0xcbba69), hex(0xffea46)}},
        {"okabe-ito",
         {hex(0x56b4e9), hex(0xe69f00), hex(0x009e73), hex(0xf0e442), hex(0x0072b2), hex(0xd55e00)}},
        {"greys", {hex(0xf0f0f0), hex(0xcccccc), hex(0xa0a0a0), hex(0x757575), hex(0x454545), hex(0x000000)}},
    };
    return all;
}

std::optional<Palette> paletteNamed(const std::string& name) {
    for (const NamedPalette& palette : palettes())
        if (palette.name == name) return palette.colours;
    return {};
}

Palette readPalette(const std::string& path) {
    constexpr std::size_t longestPaletteLine = 4096;
    LineReader reader(path, longestPaletteLine);
    Palette colours{};
    for (std::size_t found = 0; found < colours.size();) {
        const std::string_view line = reader.readLine();
        const std::string text = lcase(trim(line.substr(0, line.find(';'))));
        if (text.empty()) continue;
        try {
            colours[found++] = colourOf(text);
        } catch (RunTimeError& error) {
            error.where = std::to_string(reader.lineNumber()) + ": colour";
            error.description = "Type mismatch";
            error.number = static_cast<int>(ErrorNumber::TypeMismatch);
            throw;
        }
    }
    return colours;
}

}  // namespace zg
