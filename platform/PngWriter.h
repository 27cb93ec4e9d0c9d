#pragma once

#include <QIODevice>
#include <QImage>

namespace zg {

/// Writes a picture as PNG with exactly its pixels and its size on paper, packed for pages (see pngOf). False
/// if the device or memory refused.
bool writePng(const QImage& image, QIODevice& device);

}  // namespace zg
