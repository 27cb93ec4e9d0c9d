#include "platform/PngWriter.h"

#include <QtEndian>
#include <array>
#include <optional>

#ifdef ZG_DEFLATE
#include <libdeflate.h>

#include <memory>
#endif

namespace zg {

namespace {

constexpr std::size_t mostColours = 256;

/// Numbers the colours in the order in which they come; a small open hash, since each pixel asks.
class ColourTable {
 public:
    /// Nothing for a colour beyond the 256th.
    std::optional<uchar> numberOf(QRgb colour) {
        std::size_t slot = colour * 0x9E3779B1U >> (32 - slotBits);
        while (slots_[slot].used) {
            if (slots_[slot].colour == colour) return slots_[slot].number;
            slot = (slot + 1) % slots_.size();
        }
        if (static_cast<std::size_t>(colours_.size()) == mostColours) return {};
        const auto number = static_cast<uchar>(colours_.size());
        slots_[slot] = {colour, number, true};
        colours_.append(colour);
        return number;
    }

    const QList<QRgb>& colours() const { return colours_; }

 private:
    static constexpr unsigned slotBits = 10;  // four times as many places as colours
    struct Slot {
        QRgb colour = 0;
        uchar number = 0;
        bool used = false;
    };
    std::array<Slot, std::size_t{1} << slotBits> slots_;
    QList<QRgb> colours_;
};

const QRgb* pixelsOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

/// Numbers the pixels of one line; false if the table is full.
bool numberLine(const QRgb* from, uchar* to, int width, ColourTable& table) {
    QRgb before = 0;  // no pixel is without its upper byte
    uchar number = 0;
    for (int x = 0; x < width; ++x) {
        const QRgb colour = from[x] | 0xFF000000U;
        if (colour != before) {
            const std::optional<uchar> found = table.numberOf(colour);
            if (!found) return false;
            number = *found;
            before = colour;
        }
        to[x] = number;
    }
    return true;
}

/// The lines as PNG packs them: each begins with the number of its filter, here always 0, none.
QByteArray plainLines(const QImage& image) {
    const bool numbered = image.format() == QImage::Format_Indexed8;
    const int width = image.width();
    const qsizetype line = 1 + static_cast<qsizetype>(width) * (numbered ? 1 : 3);
    QByteArray lines(line * image.height(), '\0');
    char* to = lines.data();
    for (int y = 0; y < image.height(); ++y) {
        *to++ = 0;
        if (numbered) {
            to = std::copy_n(reinterpret_cast<const char*>(image.constScanLine(y)), width, to);
            continue;
        }
        const QRgb* from = pixelsOf(image, y);
        for (int x = 0; x < width; ++x) {
            *to++ = static_cast<char>(qRed(from[x]));
            *to++ = static_cast<char>(qGreen(from[x]));
            *to++ = static_cast<char>(qBlue(from[x]));
        }
    }
    return lines;
}

#ifdef ZG_DEFLATE
/// Level 2 of 1 to 12: of pages of 600 pixels 66 KB in 3.9 ms; level 1 needs 3.5 ms for 70 KB, level 6
/// 5.5 ms for 64 KB.
QByteArray packed(const QByteArray& bytes) {
    constexpr int level = 2;
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> packer(
        libdeflate_alloc_compressor(level), libdeflate_free_compressor);
    if (!packer) return {};
    const auto size = static_cast<std::size_t>(bytes.size());
    const std::size_t most = libdeflate_zlib_compress_bound(packer.get(), size);
    QByteArray result(static_cast<qsizetype>(most), Qt::Uninitialized);
    result.resize(static_cast<qsizetype>(
        libdeflate_zlib_compress(packer.get(), bytes.constData(), size, result.data(), most)));
    return result;
}
#else
/// Level 2 of 1 to 9: about twice the time of the better packer, and 75 KB.
QByteArray packed(const QByteArray& bytes) {
    constexpr int level = 2;
    constexpr qsizetype lengthBefore = 4;
    return qCompress(bytes, level).mid(lengthBefore);
}
#endif

/// The check sum of chunks, ISO 3309, by its table.
quint32 chunkSum(const QByteArray& bytes) {
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> sums{};
        for (quint32 i = 0; i < sums.size(); ++i) {
            quint32 sum = i;
            for (int bit = 0; bit < 8; ++bit) sum = (sum & 1U) != 0 ? 0xEDB88320U ^ sum >> 1U : sum >> 1U;
            sums[i] = sum;
        }
        return sums;
    }();
    quint32 sum = 0xFFFFFFFFU;
    for (const char c : bytes) sum = table[(sum ^ static_cast<uchar>(c)) & 0xFFU] ^ sum >> 8U;
    return sum ^ 0xFFFFFFFFU;
}

QByteArray number(quint32 value) {
    QByteArray bytes(sizeof value, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

bool writeChunk(QIODevice& device, const char* name, const QByteArray& content) {
    const QByteArray named = name + content;
    const QByteArray whole = number(static_cast<quint32>(content.size())) + named + number(chunkSum(named));
    return device.write(whole) == whole.size();
}

bool writeHead(QIODevice& device, const QImage& image) {
    const bool numbered = image.format() == QImage::Format_Indexed8;
    QByteArray head =
        number(static_cast<quint32>(image.width())) + number(static_cast<quint32>(image.height()));
    head.append('\x08');                      // bits
    head.append(numbered ? '\x03' : '\x02');  // kind of colours
    head.append(3, '\0');                     // packing, filters, one pass
    const QByteArray dots = number(static_cast<quint32>(image.dotsPerMeterX())) +
                            number(static_cast<quint32>(image.dotsPerMeterY())) + '\x01';
    if (device.write("\x89PNG\r\n\x1A\n", 8) != 8 || !writeChunk(device, "IHDR", head) ||
        !writeChunk(device, "pHYs", dots))
        return false;
    if (!numbered) return true;
    QByteArray colours;
    for (const QRgb colour : image.colorTable())
        for (const int part : {qRed(colour), qGreen(colour), qBlue(colour)})
            colours.append(static_cast<char>(part));
    return writeChunk(device, "PLTE", colours);
}

/// Beyond this the toolkit writes line by line.
constexpr qint64 mostPixelsAtOnce = qint64{16} << 20;

}  // namespace

QImage withColourTable(const QImage& image) {
    if (image.isNull() || image.hasAlphaChannel()) return {};
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    QImage numbered(pixels.size(), QImage::Format_Indexed8);
    if (pixels.isNull() || numbered.isNull()) return {};
    ColourTable table;
    for (int y = 0; y < pixels.height(); ++y)
        if (!numberLine(pixelsOf(pixels, y), numbered.scanLine(y), pixels.width(), table)) return {};
    numbered.setColorTable(table.colours());
    numbered.setDotsPerMeterX(image.dotsPerMeterX());
    numbered.setDotsPerMeterY(image.dotsPerMeterY());
    return numbered;
}

bool writePng(const QImage& image, QIODevice& device) {
    const qint64 pixels = qint64{image.width()} * image.height();
    if (image.isNull() || image.hasAlphaChannel() || pixels > mostPixelsAtOnce)
        return image.save(&device, "PNG");
    if (!device.isWritable()) return false;
    QImage page = withColourTable(image);
    if (page.isNull()) page = image.convertToFormat(QImage::Format_RGB32);
    if (page.isNull()) return false;
    const QByteArray lines = packed(plainLines(page));
    return !lines.isEmpty() && writeHead(device, page) && writeChunk(device, "IDAT", lines) &&
           writeChunk(device, "IEND", {});
}

}  // namespace zg
