#include "platform/QtPicture.h"

#include <QFile>
#include <QImageReader>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"

namespace zg {

namespace {

constexpr int invalidPicture = 481;

/// The sizes stated in the first bytes of a bitmap file.
class BitmapHead {
 public:
    explicit BitmapHead(std::FILE* file) { size_ = std::fread(bytes_.data(), 1, bytes_.size(), file); }

    /// Bytes that the file must have for all of its pixels; 0 for a file of another format.
    std::int64_t bytesNeeded() const {
        if (size_ < bytes_.size() || bytes_[0] != 'B' || bytes_[1] != 'M') return 0;
        const bool old = number(14, 4) == 12;  // two bytes per side, and no compression
        const std::int64_t width = old ? number(18, 2) : number(18, 4);
        const std::int64_t height = std::abs(old ? number(20, 2) : number(22, 4));
        const std::int64_t depth = number(old ? 24 : 28, 2);
        const std::int64_t compression = old ? 0 : number(30, 4);
        const std::int64_t pixels = number(10, 4);
        if (compression == 1 || compression == 2) return pixels + number(34, 4);
        constexpr std::int64_t longestSide = 1'000'000;  // far more than the toolkit reads
        if (compression > 3 || width <= 0 || height == 0 || width > longestSide || height > longestSide)
            return 0;
        const std::int64_t bits = width * depth;
        return pixels + (height - 1) * ((bits + 31) / 32 * 4) + (bits + 7) / 8;
    }

 private:
    /// The signed number in that many bytes, the lowest first.
    std::int64_t number(std::size_t at, std::size_t count) const {
        std::uint32_t value = 0;
        for (std::size_t i = count; i-- > 0;) value = value << 8 | bytes_[at + i];
        return count == 4 ? std::int64_t{static_cast<std::int32_t>(value)} : std::int64_t{value};
    }

    std::array<unsigned char, 38> bytes_{};
    std::size_t size_ = 0;
};

/// The toolkit reads as much of a bitmap as there is and leaves the rest black.
void needWhole(const std::string& path, std::FILE* file) {
    const std::int64_t needed = BitmapHead(file).bytesNeeded();
    const std::optional<FileState> state = stateOfFile(path);
    if (!state || needed <= 0 || state->size >= static_cast<std::uint64_t>(needed)) return;
    throw RunTimeError(invalidPicture, "Invalid picture, cut short at " + std::to_string(state->size) +
                                           " of " + std::to_string(needed) + " bytes");
}

}  // namespace

PicturePointer loadPicture(const std::string& path) {
    // A missing or locked file has its own error, and the toolkit accepts only names that are text.
    const FileHandle handle = openForReading(path);
    needWhole(path, handle.get());
    std::rewind(handle.get());
    QFile file;
    if (!file.open(handle.get(), QIODevice::ReadOnly)) raise(ErrorNumber::PathFileAccessError);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    if (image.isNull()) throw RunTimeError(invalidPicture, "Invalid picture");
    return std::make_shared<QtPicture>(image);
}

PicturePointer loadMarkerPicture(const std::string& path) {
    if (!fileExists(path)) return nullptr;
    try {
        return loadPicture(path);
    } catch (const RunTimeError&) {
        return nullptr;
    }
}

}  // namespace zg
