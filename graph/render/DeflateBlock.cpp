#include "graph/render/DeflateBlock.h"

#include <algorithm>
#include <bit>

namespace zg {

namespace {

constexpr std::size_t endOfBlock = 256;
constexpr std::size_t firstLength = 257;  // the symbol of the shortest match
constexpr std::size_t literalSymbols = 286;
constexpr std::size_t distanceSymbols = 30;
constexpr unsigned longestWord = 15;

/// A number as a symbol and the bits after it.
struct Split {
    std::uint32_t symbol = 0;
    std::uint32_t rest = 0;
    std::uint32_t bits = 0;  ///< of the rest
};

/// The symbol says the place of the highest bit and so many bits after it.
constexpr Split split(std::uint32_t number, std::uint32_t symbolBits) {
    if (number >> symbolBits == 0) return {number, 0, 0};
    const std::uint32_t bits = static_cast<std::uint32_t>(std::bit_width(number)) - 1 - symbolBits;
    return {(bits << symbolBits) + (number >> bits), number & ((1U << bits) - 1), bits};
}

Split distanceOf(std::size_t distance) { return split(static_cast<std::uint32_t>(distance - 1), 1); }

constexpr std::size_t lengthCount = DeflateMatch::longest - DeflateMatch::shortest + 1;

constexpr std::array<Split, lengthCount> splitLengths() {
    std::array<Split, lengthCount> splits;
    for (std::uint32_t i = 0; i < lengthCount; ++i) splits[i] = split(i, 2);
    splits.back() = {28, 0, 0};
    return splits;
}

/// By the length less the shortest one.
constexpr std::array<Split, lengthCount> lengthSplits = splitLengths();

/// A length of a code's words, so often, in the symbols in which deflate writes lengths.
void addRun(std::vector<Split>& symbols, std::uint8_t length, std::uint32_t count) {
    if (length > 0) {
        symbols.push_back({length});
        --count;
    }
    const std::uint32_t most = length > 0 ? 6 : 138;
    while (count >= 3) {
        const std::uint32_t part = std::min(count, most);
        if (length > 0)
            symbols.push_back({16, part - 3, 2});
        else if (part <= 10)
            symbols.push_back({17, part - 3, 3});
        else
            symbols.push_back({18, part - 11, 7});
        count -= part;
    }
    symbols.insert(symbols.end(), count, {length});
}

std::vector<Split> lengthSymbols(const std::vector<std::uint8_t>& lengths) {
    std::vector<Split> symbols;
    for (std::size_t at = 0; at < lengths.size();) {
        std::size_t end = at;
        while (end < lengths.size() && lengths[end] == lengths[at]) ++end;
        addRun(symbols, lengths[at], static_cast<std::uint32_t>(end - at));
        at = end;
    }
    return symbols;
}

/// Writes the lengths of both codes, in a code of their own.
void writeLengths(BitWriter& bits, const PrefixCode& literals, const PrefixCode& distances) {
    constexpr std::array<std::uint8_t, 19> order = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                    11, 4,  12, 3, 13, 2, 14, 1, 15};
    std::vector<std::uint8_t> lengths = literals.lengths;
    lengths.insert(lengths.end(), distances.lengths.begin(), distances.lengths.end());
    const std::vector<Split> symbols = lengthSymbols(lengths);
    std::vector<std::uint32_t> counts(order.size());
    for (const Split& symbol : symbols) ++counts[symbol.symbol];
    const PrefixCode code = prefixCode(counts, 7);
    bits.add(literalSymbols - 257, 5);
    bits.add(distanceSymbols - 1, 5);
    bits.add(order.size() - 4, 4);
    for (const std::uint8_t symbol : order) bits.add(code.lengths[symbol], 3);
    for (const Split& symbol : symbols) {
        bits.word(code, symbol.symbol);
        bits.add(symbol.rest, symbol.bits);
    }
}

/// A length's symbol in its code, and the bits after it.
struct Word {
    std::uint32_t bits = 0;
    std::uint32_t count = 0;
};

using LengthWords = std::array<Word, lengthSplits.size()>;

LengthWords lengthWords(const PrefixCode& literals) {
    LengthWords words;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Split& split = lengthSplits[i];
        const std::uint32_t count = literals.lengths[firstLength + split.symbol];
        words[i] = {literals.words[firstLength + split.symbol] | split.rest << count, count + split.bits};
    }
    return words;
}

constexpr std::size_t mostBytesOfCodes = 1024;  // 316 lengths of 7 + 7 bits at most, and few bits more
constexpr std::size_t mostBytesOfMatch = 6;     // two words of 15 bits, 5 and 13 bits after them

}  // namespace

void BitWriter::endByte() {
    bytes_.resize(end_);
    for (; count_ > 0; count_ -= std::min(count_, 8U), waiting_ >>= 8U)
        bytes_ += static_cast<char>(waiting_ & 0xFFU);
    end_ = bytes_.size();
}

DeflateBlock::DeflateBlock() {
    tokens_.reserve(mostTokens);
    clear();
}

/// Each code gets two symbols that occur, since one alone would have no bits.
void DeflateBlock::clear() {
    tokens_.clear();
    literals_.assign(literalSymbols, 0);
    literals_[0] = literals_[endOfBlock] = 1;
    distances_.assign(distanceSymbols, 0);
    distances_[0] = distances_[1] = 1;
}

void DeflateBlock::addLiteral(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    tokens_.push_back({value, 0});
    ++literals_[value];
}

void DeflateBlock::addMatch(const DeflateMatch& match) {
    tokens_.push_back({static_cast<std::uint16_t>(match.length), static_cast<std::uint16_t>(match.distance)});
    ++literals_[firstLength + lengthSplits[match.length - DeflateMatch::shortest].symbol];
    ++distances_[distanceOf(match.distance).symbol];
}

void DeflateBlock::write(BitWriter& bits, bool isLast) {
    constexpr std::uint32_t ownCodes = 2;
    const PrefixCode literals = prefixCode(literals_, longestWord);
    const PrefixCode distances = prefixCode(distances_, longestWord);
    const LengthWords lengths = lengthWords(literals);
    bits.makeRoom(mostBytesOfCodes + tokens_.size() * mostBytesOfMatch);
    bits.add(isLast ? 1 : 0, 1);
    bits.add(ownCodes, 2);
    writeLengths(bits, literals, distances);
    for (const Token& token : tokens_) {
        if (token.distance == 0) {
            bits.word(literals, token.value);
            continue;
        }
        const Word& length = lengths[token.value - DeflateMatch::shortest];
        bits.add(length.bits, length.count);
        const Split distance = distanceOf(token.distance);
        const std::uint32_t count = distances.lengths[distance.symbol];
        bits.add(distances.words[distance.symbol] | distance.rest << count, count + distance.bits);
    }
    bits.word(literals, endOfBlock);
    clear();
}

}  // namespace zg
