#include "graph/render/PagePacker.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "graph/render/DeflateBlock.h"

namespace zg {

namespace {

constexpr std::size_t farthest = 32768;

/// How many bytes at both places agree, up to the limit.
std::size_t agreeing(const char* one, const char* other, std::size_t limit) {
    std::size_t count = 0;
    for (; count + sizeof(std::uint64_t) <= limit; count += sizeof(std::uint64_t)) {
        std::uint64_t a = 0;
        std::uint64_t b = 0;
        std::memcpy(&a, one + count, sizeof a);
        std::memcpy(&b, other + count, sizeof b);
        if (a == b) continue;
        const bool isLowestFirst = std::endian::native == std::endian::little;
        return count +
               static_cast<std::size_t>(isLowestFirst ? std::countr_zero(a ^ b) : std::countl_zero(a ^ b)) /
                   8;
    }
    while (count < limit && one[count] == other[count]) ++count;
    return count;
}

/// Where the bytes at a place were seen last, by so many of them.
template <std::size_t count>
class LastPlaces {
 public:
    static constexpr std::uint32_t never = ~std::uint32_t{0};

    LastPlaces() { places_.fill(never); }

    /// Notes the place, at least 8 bytes from the end; gives the one before it, or never.
    std::uint32_t replace(const char* lines, std::size_t at) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, lines + at, sizeof bytes);
        bytes <<= 64U - 8U * count;  // the others do not matter
        std::uint32_t& place = places_[bytes * 0x9E3779B97F4A7C15U >> (64U - slotBits)];
        const std::uint32_t before = place;
        place = static_cast<std::uint32_t>(at);
        return before;
    }

 private:
    static constexpr unsigned slotBits = 13;
    std::array<std::uint32_t, std::size_t{1} << slotBits> places_;
};

/// Finds for each place the longest bytes that were there before.
class MatchFinder {
 public:
    MatchFinder(std::string_view lines, std::size_t bytesPerPixel, std::size_t bytesPerLine)
        : lines_(lines), pixel_(bytesPerPixel), line_(bytesPerLine) {}

    DeflateMatch longestAt(std::size_t at) {
        const std::size_t limit = std::min(DeflateMatch::longest, lines_.size() - at);
        DeflateMatch best;
        for (const std::size_t distance : {pixel_, line_}) {
            if (at < distance || distance > farthest) continue;
            lengthen(best, at, distance, limit);
            if (best.length == limit) return best;
        }
        // Another place would spare a few bits at most, and take longest to find.
        if (best.length >= longEnough || at + sizeof(std::uint64_t) > lines_.size()) return best;
        lengthenFrom(best, at, twoColours_.replace(lines_.data(), at), limit);
        const std::uint32_t sameColour = oneColour_.replace(lines_.data(), at);
        if (best.length < 2 * colourBytes) lengthenFrom(best, at, sameColour, limit);
        return best;
    }

 private:
    static constexpr std::size_t colourBytes = 3;
    static constexpr std::size_t longEnough = 32;

    void lengthen(DeflateMatch& best, std::size_t at, std::size_t distance, std::size_t limit) const {
        const char* place = lines_.data() + at;
        const std::size_t length = agreeing(place, place - distance, limit);
        if (length > best.length || (length == best.length && distance < best.distance))
            best = {length, distance};
    }

    void lengthenFrom(DeflateMatch& best, std::size_t at, std::uint32_t from, std::size_t limit) const {
        if (from != LastPlaces<1>::never && at - from <= farthest) lengthen(best, at, at - from, limit);
    }

    std::string_view lines_;
    std::size_t pixel_;
    std::size_t line_;
    LastPlaces<colourBytes> oneColour_;
    LastPlaces<2 * colourBytes> twoColours_;
};

/// Where pixels begin; each line begins with one byte more.
class PixelStarts {
 public:
    PixelStarts(std::size_t bytesPerPixel, std::size_t bytesPerLine)
        : pixel_(bytesPerPixel), line_(bytesPerLine) {}

    /// The first pixel or line that begins there or later; places come in ascending order.
    std::size_t firstFrom(std::size_t at) {
        while (at - lineStart_ >= line_) lineStart_ += line_;
        if (at == lineStart_) return at;
        const auto inLine = static_cast<std::uint32_t>(at - lineStart_ - 1);
        const std::uint32_t begun =
            pixel_ == 3 ? inLine % 3
                        : inLine % static_cast<std::uint32_t>(pixel_);  // a known divisor is faster
        return begun == 0 ? at : std::min(at + pixel_ - begun, lineStart_ + line_);
    }

 private:
    std::size_t pixel_;
    std::size_t line_;
    std::size_t lineStart_ = 0;
};

constexpr std::size_t summedAtOnce = 32;

/// Of short numbers, so that the compiler can multiply several of them at once.
constexpr std::array<std::int16_t, summedAtOnce> sumWeights = [] {
    std::array<std::int16_t, summedAtOnce> weights{};
    for (std::size_t i = 0; i < summedAtOnce; ++i) weights[i] = static_cast<std::int16_t>(summedAtOnce - i);
    return weights;
}();

/// The sum at the end of a zlib stream (Adler-32).
std::uint32_t sumOf(std::string_view lines) {
    constexpr std::uint64_t divisor = 65521;
    constexpr std::uint64_t large = std::uint64_t{1} << 60U;
    const auto* bytes = reinterpret_cast<const unsigned char*>(lines.data());
    std::uint64_t first = 1;
    std::uint64_t second = 0;
    std::size_t at = 0;
    for (; at + summedAtOnce <= lines.size(); at += summedAtOnce) {
        int sum = 0;
        int weighted = 0;
        for (std::size_t i = 0; i < summedAtOnce; ++i) {
            sum += bytes[at + i];
            weighted += sumWeights[i] * static_cast<std::int16_t>(bytes[at + i]);
        }
        second += summedAtOnce * first + static_cast<std::uint64_t>(weighted);
        first += static_cast<std::uint64_t>(sum);
        if (second < large) continue;
        first %= divisor;
        second %= divisor;
    }
    for (; at < lines.size(); ++at) second += first += bytes[at];
    return static_cast<std::uint32_t>(second % divisor << 16U | first % divisor);
}

}  // namespace

std::string packedPage(std::string_view lines, std::size_t bytesPerPixel, std::size_t bytesPerLine) {
    std::string packed;
    packed.reserve(lines.size() / 8);
    BitWriter bits(packed);
    bits.makeRoom(4);
    bits.add(0x0178, 16);  // deflate, 32 KiB, packed fast
    MatchFinder finder(lines, bytesPerPixel, bytesPerLine);
    PixelStarts pixels(bytesPerPixel, bytesPerLine);
    DeflateBlock block;
    for (std::size_t at = 0; at < lines.size();) {
        const DeflateMatch match = finder.longestAt(at);
        if (match.length >= DeflateMatch::shortest) {
            block.addMatch(match);
            at += match.length;
        } else {
            block.addLiteral(lines[at++]);
        }
        // What is in the middle of a pixel was hardly seen before where pixels begin.
        for (const std::size_t next = std::min(pixels.firstFrom(at), lines.size()); at < next;)
            block.addLiteral(lines[at++]);
        if (block.isFull()) block.write(bits, false);
    }
    block.write(bits, true);
    bits.endByte();
    const std::uint32_t sum = sumOf(lines);
    bits.makeRoom(4);
    for (const unsigned shift : {24U, 16U, 8U, 0U}) bits.add(sum >> shift & 0xFFU, 8);
    bits.endByte();
    return packed;
}

}  // namespace zg
