#pragma once

#include <QImage>

#include "graph/render/Canvas.h"

namespace zg {

/// A picture decoded by the toolkit.
class QtPicture : public Picture {
 public:
    explicit QtPicture(QImage image) : image_(std::move(image)) {}

    int width() const override { return image_.width(); }
    int height() const override { return image_.height(); }
    const QImage& image() const { return image_; }

 private:
    QImage image_;
};

/// Loads a picture file of any kind the toolkit reads; raises 481, "Invalid picture", or the error of the
/// file.
PicturePointer loadPicture(const std::string& path);

}  // namespace zg
