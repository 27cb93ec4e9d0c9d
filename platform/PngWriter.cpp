#include "platform/PngWriter.h"

#include <string>

#include "graph/render/PngPicture.h"

namespace zg {

namespace {

/// Beyond this the toolkit writes line by line.
constexpr qint64 mostPixelsAtOnce = qint64{16} << 20;

}  // namespace

bool writePng(const QImage& image, QIODevice& device) {
    const qint64 pixels = qint64{image.width()} * image.height();
    if (image.isNull() || image.hasAlphaChannel() || pixels > mostPixelsAtOnce)
        return image.save(&device, "PNG");
    if (!device.isWritable()) return false;
    const QImage page = image.convertToFormat(QImage::Format_RGB32);
    if (page.isNull()) return false;
    const std::string png = pngOf(
        {reinterpret_cast<const std::uint32_t*>(page.constBits()), static_cast<std::size_t>(page.width()),
         static_cast<std::size_t>(page.height()),
         static_cast<std::size_t>(page.bytesPerLine()) / sizeof(std::uint32_t),
         static_cast<std::uint32_t>(page.dotsPerMeterX()), static_cast<std::uint32_t>(page.dotsPerMeterY())});
    const auto size = static_cast<qint64>(png.size());
    return size > 0 && device.write(png.data(), size) == size;
}

}  // namespace zg
