#pragma once

// The parts of a deflate stream (RFC 1951).

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "graph/render/PrefixCode.h"

namespace zg {

/// Appends bits to bytes, the lowest first.
class BitWriter {
 public:
    explicit BitWriter(std::string& bytes) : bytes_(bytes), end_(bytes.size()) {}

    /// So many bytes more will fit; before anything is added.
    void makeRoom(std::size_t count) {
        if (bytes_.size() < end_ + count) bytes_.resize(end_ + count);
    }

    /// At most 32 bits; those above the count are 0.
    void add(std::uint32_t bits, std::uint32_t count) {
        waiting_ |= std::uint64_t{bits} << count_;
        count_ += count;
        if (count_ < 32) return;
        char* to = bytes_.data() + end_;  // the compiler makes one number of the four bytes
        to[0] = static_cast<char>(waiting_ & 0xFFU);
        to[1] = static_cast<char>(waiting_ >> 8U & 0xFFU);
        to[2] = static_cast<char>(waiting_ >> 16U & 0xFFU);
        to[3] = static_cast<char>(waiting_ >> 24U & 0xFFU);
        end_ += 4;
        waiting_ >>= 32U;
        count_ -= 32;
    }

    void word(const PrefixCode& code, std::size_t symbol) { add(code.words[symbol], code.lengths[symbol]); }

    /// Fills the last byte with zeros; the bytes then end there.
    void endByte();

 private:
    std::string& bytes_;
    std::size_t end_;  ///< of what is written; the rest is room
    std::uint64_t waiting_ = 0;
    std::uint32_t count_ = 0;  ///< of the bits that wait, at most 31
};

/// Bytes that were there before.
struct DeflateMatch {
    static constexpr std::size_t shortest = 3;
    static constexpr std::size_t longest = 258;

    std::size_t length = 0;
    std::size_t distance = 0;  ///< back to them, at most 32768
};

/// Bytes and matches that share their codes.
class DeflateBlock {
 public:
    DeflateBlock();

    bool isFull() const { return tokens_.size() >= mostTokens; }
    void addLiteral(char byte);
    void addMatch(const DeflateMatch& match);

    /// Writes the block with the shortest codes for it, and empties it.
    void write(BitWriter& bits, bool isLast);

 private:
    static constexpr std::size_t mostTokens = 8192;

    struct Token {
        std::uint16_t value;     ///< the byte, or the match's length
        std::uint16_t distance;  ///< 0 for a byte
    };

    void clear();

    std::vector<Token> tokens_;
    std::vector<std::uint32_t> literals_;  ///< how often each symbol for bytes and lengths occurs
    std::vector<std::uint32_t> distances_;
};

}  // namespace zg
