#pragma once

#include <cstdint>
#include <cstring>
#include <string>

/// Fills a text argument of a library: padded with blanks, without a NUL.
inline void put(char* buffer, std::int32_t width, const std::string& text) {
    std::memset(buffer, ' ', static_cast<std::size_t>(width));
    std::memcpy(buffer, text.data(), text.size());
}
