#include "platform/QtPicture.h"

#include <QImageReader>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr int invalidPicture = 481;

}  // namespace

PicturePointer loadPicture(const std::string& path) {
    openForReading(path);  // a missing or locked file has an error of its own
    QImageReader reader(fileName(path));
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
