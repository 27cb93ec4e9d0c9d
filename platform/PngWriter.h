#pragma once

#include <QIODevice>
#include <QImage>

namespace zg {

/// The same picture with a table of its colours and a byte per pixel; null if it has more than 256 colours or
/// any that is not opaque.
QImage withColourTable(const QImage& image);

/// Writes a picture as PNG, with a table of colours where that loses nothing. Pages are mostly plain areas,
/// which pack best and fastest as they are: without the differences of neighbouring pixels that suit
/// photographs. False if the device or memory refused.
bool writePng(const QImage& image, QIODevice& device);

}  // namespace zg
