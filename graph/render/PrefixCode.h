#pragma once

#include <cstdint>
#include <vector>

namespace zg {

/// Words of bits for symbols; none begins another. Canonical, so that the lengths say all, as deflate wants.
struct PrefixCode {
    std::vector<std::uint8_t> lengths;  ///< bits for each symbol, 0 for those that never occur
    std::vector<std::uint16_t> words;   ///< their bits, of which the lowest comes first
};

/// The shortest code for symbols that occur so often, with words of at most so many bits (15 at most, and
/// enough for the symbols). Two symbols or more must occur.
PrefixCode prefixCode(const std::vector<std::uint32_t>& counts, unsigned longest);

}  // namespace zg
