#pragma once

#include <cstdint>
#include <string>

namespace zg {

/// A 24-bit colour with red in the low byte; values with the high bit set name a colour of the desktop.
using Colour = std::uint32_t;

constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) { return red | green << 8U | blue << 16U; }
constexpr unsigned redOf(Colour colour) { return colour & 0xFFU; }
constexpr unsigned greenOf(Colour colour) { return colour >> 8U & 0xFFU; }
constexpr unsigned blueOf(Colour colour) { return colour >> 16U & 0xFFU; }

constexpr Colour black = 0;
constexpr Colour white = rgb(255, 255, 255);

/// The colours of the desktop that drawing and field marks use.
constexpr Colour scrollBarColour = 0x80000000U;
constexpr Colour buttonFaceColour = 0x8000000FU;

/// Marks of a field: wrong, wrong while disabled, correct.
constexpr Colour yellowMark = 65535;
constexpr Colour darkYellowMark = 49344;
constexpr Colour cleanMark = white;

/// The colour to paint for one kept as a single-precision number: whole, and within 24 bits.
constexpr Colour paintedColour(float stored) {
    if (!(stored > 0.0F)) return 0;
    return stored >= 16777215.0F ? 16777215U : static_cast<Colour>(stored);
}

/// A colour of the desktop as the neutral one that it comes out as on every theme; others as they are.
constexpr Colour solidColour(Colour colour) {
    if (colour == scrollBarColour) return rgb(72, 72, 72);
    if (colour == buttonFaceColour) return rgb(240, 240, 240);
    return colour & 0xFFFFFFU;
}

/// The font of one group of texts. The colour is a single-precision number, as in the configuration file.
struct FontRecord {
    float colour = 0;
    std::string name;
    std::int16_t size = 0;  ///< points
    bool bold = false;
    bool italic = false;
    bool operator==(const FontRecord&) const = default;
};

}  // namespace zg
