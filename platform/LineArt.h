#pragma once

#include <QIcon>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QString>
#include <vector>

namespace zg {

/// A picture of lines and areas, sharp at any size. It reads the part of SVG that the program's own icons are
/// written in: groups, paths, circles and rectangles with plain fills and strokes.
class LineArt {
 public:
    /// Of a resource or file.
    explicit LineArt(const QString& path);

    /// All of the file was understood.
    bool isWhole() const { return whole_; }

    void paint(QPainter& painter, const QRectF& target) const;

    /// On nothing, as a square of so many pixels a side.
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

/// An icon that paints itself at whatever size is wanted.
QIcon lineArtIcon(const QString& path);

/// Path data of SVG: M, L, H, V, C, A and Z in both cases; false where it holds something else. Of an arc
/// both radii have to be the same.
bool readPath(const QString& data, QPainterPath& path);

}  // namespace zg
