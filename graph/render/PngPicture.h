#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace zg {

/// Opaque pixels: red, green and blue in the lower 24 bits, red highest.
struct PixelPage {
    const std::uint32_t* first = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t pixelsPerLine = 0;  ///< from the begin of a line to that of the next one
    std::uint32_t dotsPerMetreX = 0;
    std::uint32_t dotsPerMetreY = 0;
};

/// The bytes of a PNG picture with exactly these pixels: with a table of colours if it has at most 256, which
/// loses nothing. Pages are mostly plain areas, which pack best and fastest as they are: without the
/// differences of neighbouring pixels that suit photographs. "" for no pixels; throws std::bad_alloc if
/// memory does not suffice.
std::string pngOf(const PixelPage& page);

}  // namespace zg
