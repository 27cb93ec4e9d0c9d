#pragma once

#include <QImage>
#include <QPoint>

#include "graph/render/Canvas.h"

namespace zg {

/// A picture decoded by the toolkit.
class QtPicture : public Picture {
 public:
    explicit QtPicture(QImage image, QPoint hotSpot = {-1, -1})
        : image_(std::move(image)), hotSpot_(hotSpot) {}

    int width() const override { return image_.width(); }
    int height() const override { return image_.height(); }
    const QImage& image() const { return image_; }

    /// The hot spot of a pointer with this picture; (-1, -1) is its centre.
    QPoint hotSpot() const { return hotSpot_; }

 private:
    QImage image_;
    QPoint hotSpot_;
};

/// The image of a picture that was decoded here.
inline const QImage& imageOf(const Picture& picture) {
    return static_cast<const QtPicture&>(picture).image();
}

/// Loads a picture file of any format that the toolkit reads; raises 481, "Invalid picture", or the error of
/// the file.
PicturePointer loadPicture(const std::string& path);

/// The same for a marker's picture: null if the file does not exist or is not a picture, without an error.
PicturePointer loadMarkerPicture(const std::string& path);

}  // namespace zg
