#pragma once

#include <QIcon>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QString>
#include <vector>

namespace zg {

/// A picture of lines and areas, sharp at any size. It supports the part of SVG that the program's own icons
/// use: groups, paths, circles and rectangles with plain fills and strokes.
class LineArt {
 public:
    /// Reads a resource or file.
    explicit LineArt(const QString& path);

    /// Whether all of the file was understood.
    bool isWhole() const { return whole_; }

    void paint(QPainter& painter, const QRectF& target) const;

    /// Painted on a transparent square of this many pixels per side.
    QImage image(int side) const;

 private:
    struct Shape {
        QPainterPath path;
        QBrush fill;
        QPen stroke;
    };
    friend class LineArtReader;

    QRectF viewBox_;
    std::vector<Shape> shapes_;
    bool whole_ = false;
};

/// An icon that paints itself at any size.
QIcon lineArtIcon(const QString& path);

/// Path data of SVG: M, L, H, V, C, A and Z in both cases; false for anything else. Both radii of an arc must
/// be equal.
bool readPath(const QString& data, QPainterPath& path);

}  // namespace zg
