#include "processing/KeyFilters.h"

#include <string_view>

namespace zg {

namespace {

std::int16_t filtered(std::int16_t keyAscii, std::string_view besidesDigits) {
    if (keyAscii < 32 || keyAscii > 127) return keyAscii;
    const char key = static_cast<char>(keyAscii);
    const bool passes = (key >= '0' && key <= '9') || besidesDigits.find(key) != std::string_view::npos;
    return passes ? keyAscii : std::int16_t{0};
}

}  // namespace

std::int16_t KeyNumericPositive(std::int16_t keyAscii) { return filtered(keyAscii, "."); }

std::int16_t KeyNumericInteger(std::int16_t keyAscii) { return filtered(keyAscii, ""); }

std::int16_t KeyNumericSigned(std::int16_t keyAscii) { return filtered(keyAscii, "-."); }

std::int16_t KeyNumericHeights(std::int16_t keyAscii) { return filtered(keyAscii, ",."); }

}  // namespace zg
