#include "graph/render/PngPicture.h"

#include <zlib.h>

#include <array>
#include <bit>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "graph/render/PagePacker.h"

namespace zg {

namespace {

constexpr std::size_t mostColours = 256;
constexpr std::uint32_t colourBits = 0xFFFFFFU;

/// Numbers the colours in the order in which they come; a small open hash, since each pixel asks.
class ColourTable {
 public:
    /// Nothing for a colour beyond the 256th.
    std::optional<std::uint8_t> numberOf(std::uint32_t colour) {
        std::size_t slot = colour * 0x9E3779B1U >> (32U - slotBits);
        while (slots_[slot].used) {
            if (slots_[slot].colour == colour) return slots_[slot].number;
            slot = (slot + 1) % slots_.size();
        }
        if (colours_.size() == mostColours) return {};
        const auto number = static_cast<std::uint8_t>(colours_.size());
        slots_[slot] = {colour, number, true};
        colours_.push_back(colour);
        return number;
    }

    const std::vector<std::uint32_t>& colours() const { return colours_; }

 private:
    static constexpr unsigned slotBits = 10;  // four times as many places as colours
    struct Slot {
        std::uint32_t colour = 0;
        std::uint8_t number = 0;
        bool used = false;
    };
    std::array<Slot, std::size_t{1} << slotBits> slots_;
    std::vector<std::uint32_t> colours_;
};

/// Bytes whose memory is not filled first, since pages are large.
class Bytes {
 public:
    explicit Bytes(std::size_t size) : size_(size), bytes_(std::make_unique_for_overwrite<char[]>(size)) {}

    char* begin() { return bytes_.get(); }
    std::string_view text() const { return {bytes_.get(), size_}; }
    void dropLast() { --size_; }

 private:
    std::size_t size_;
    std::unique_ptr<char[]> bytes_;
};

/// Room for the lines as PNG packs them: each begins with the number of its filter, here always 0, none.
Bytes linesOf(const PixelPage& page, std::size_t bytesPerPixel) {
    return Bytes((1 + page.width * bytesPerPixel) * page.height);
}

/// The numbers of the pixels' colours; nothing if there are too many. It begins in the middle, where pages
/// have most colours, to see soon that there are.
std::optional<Bytes> numberedLines(const PixelPage& page, ColourTable& table) {
    Bytes lines = linesOf(page, 1);
    for (std::size_t i = 0; i < page.height; ++i) {
        const std::size_t y = (i + page.height / 2) % page.height;
        const std::uint32_t* from = page.first + y * page.pixelsPerLine;
        char* to = lines.begin() + y * (1 + page.width);
        *to++ = 0;
        std::uint32_t before = ~from[0];
        std::uint8_t number = 0;
        for (std::size_t x = 0; x < page.width; ++x) {
            if (from[x] != before) {
                const std::optional<std::uint8_t> found = table.numberOf(from[x] & colourBits);
                if (!found) return {};
                number = *found;
                before = from[x];
            }
            *to++ = static_cast<char>(number);
        }
    }
    return lines;
}

/// A number whose highest byte is the first in memory.
inline std::uint32_t highestFirst(std::uint32_t number) {
    return std::endian::native == std::endian::big ? number : __builtin_bswap32(number);
}

Bytes plainLines(const PixelPage& page) {
    Bytes lines((1 + page.width * 3) * page.height + 1);
    char* to = lines.begin();
    for (std::size_t y = 0; y < page.height; ++y) {
        const std::uint32_t* from = page.first + y * page.pixelsPerLine;
        *to++ = 0;
        for (std::size_t x = 0; x < page.width; ++x, to += 3) {
            // Four bytes at once; the next pixel replaces the last one, for which the end has room.
            const std::uint32_t bytes = highestFirst(from[x] << 8U);
            std::memcpy(to, &bytes, sizeof bytes);
        }
    }
    lines.dropLast();
    return lines;
}

/// The highest byte first.
void addNumber(std::string& bytes, std::uint32_t value) {
    for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes += static_cast<char>(value >> shift & 0xFFU);
}

/// A chunk: its length, name, content, and the sum of the latter two.
void addChunk(std::string& png, const char* name, std::string_view content) {
    addNumber(png, static_cast<std::uint32_t>(content.size()));
    const std::size_t begin = png.size();
    png += name;
    png += content;
    const auto* named = reinterpret_cast<const Bytef*>(png.data() + begin);
    addNumber(png, static_cast<std::uint32_t>(
                       crc32(crc32(0, nullptr, 0), named, static_cast<uInt>(png.size() - begin))));
}

std::string headerOf(const PixelPage& page, bool numbered) {
    std::string content;
    addNumber(content, static_cast<std::uint32_t>(page.width));
    addNumber(content, static_cast<std::uint32_t>(page.height));
    content += '\x08';                      // bits
    content += numbered ? '\x03' : '\x02';  // kind of colours
    content.append(3, '\0');                // packing, filters, one pass
    return content;
}

std::string physicalSize(const PixelPage& page) {
    std::string content;
    addNumber(content, page.dotsPerMetreX);
    addNumber(content, page.dotsPerMetreY);
    return content += '\x01';
}

std::string paletteOf(const std::vector<std::uint32_t>& colours) {
    std::string content;
    for (const std::uint32_t colour : colours)
        for (const unsigned shift : {16U, 8U, 0U}) content += static_cast<char>(colour >> shift & 0xFFU);
    return content;
}

}  // namespace

std::string pngOf(const PixelPage& page) {
    if (page.width == 0 || page.height == 0) return {};
    ColourTable colours;
    std::optional<Bytes> numbered = numberedLines(page, colours);
    const Bytes lines = numbered ? std::move(*numbered) : plainLines(page);
    const std::size_t bytesPerPixel = numbered ? 1 : 3;
    const std::string packed = packedPage(lines.text(), bytesPerPixel, 1 + page.width * bytesPerPixel);
    std::string png = "\x89PNG\r\n\x1A\n";
    png.reserve(packed.size() + 2048);
    addChunk(png, "IHDR", headerOf(page, numbered.has_value()));
    addChunk(png, "pHYs", physicalSize(page));
    if (numbered) addChunk(png, "PLTE", paletteOf(colours.colours()));
    addChunk(png, "IDAT", packed);
    addChunk(png, "IEND", {});
    return png;
}

}  // namespace zg
