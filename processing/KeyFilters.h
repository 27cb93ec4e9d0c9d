#pragma once

// Which keys a text box accepts: each function returns the key itself, or 0 to drop it. Codes below 32
// (Backspace and the like) and above 127 always pass.

#include <cstdint>

namespace zg {

std::int16_t KeyNumericPositive(std::int16_t keyAscii);  ///< digits and "."
std::int16_t KeyNumericInteger(std::int16_t keyAscii);   ///< digits
std::int16_t KeyNumericSigned(std::int16_t keyAscii);    ///< digits, "-" and "."
std::int16_t KeyNumericHeights(std::int16_t keyAscii);   ///< digits, "," and "."

}  // namespace zg
