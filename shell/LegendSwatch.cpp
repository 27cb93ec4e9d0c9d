#include "shell/LegendSwatch.h"

#include <QPainter>

#include "graph/render/Curve.h"
#include "platform/QtCanvas.h"
#include "platform/QtPicture.h"

namespace zg {

namespace {

constexpr std::int32_t smallPicture = 15;
constexpr double ghostOpacity = 0.35;

/// Without a size of its own it has that of the swatch.
void fitPicture(Marker& marker) {
    if (marker.PictureWidth <= 0 || marker.PictureHeight <= 0)
        marker.SetPictureSize(smallPicture, smallPicture);
}

}  // namespace

QPixmap legendSwatch(const Series& series, QSize size, double deviceScale) {
    QImage image(size * deviceScale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(deviceScale);
    image.setDotsPerMeterX(3780);  // 96 dots per inch, as on the page
    image.setDotsPerMeterY(3780);
    image.fill(Qt::transparent);
    if (series.AllowMarker) {
        Marker marker = series.Marker;
        marker.setAlignment(Marker::centred);
        fitPicture(marker);
        MarkerPictures pictures;
        if (marker.UsePicture)
            pictures = {loadMarkerPicture(marker.PicturePath), loadMarkerPicture(marker.MaskPicturePath)};
        if (!pictures.mask) pictures.picture = nullptr;  // both are required
        marker.Transparent = true;
        QtCanvas canvas(image, size.width(), size.height());
        paintMarker(canvas, {size.width() / 2.0, size.height() / 2.0}, marker, pictures);
    }
    return QPixmap::fromImage(image);
}

QPixmap ghosted(const QPixmap& swatch) {
    QPixmap faded(swatch.size());
    faded.setDevicePixelRatio(swatch.devicePixelRatio());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(ghostOpacity);
    painter.drawPixmap(0, 0, swatch);
    return faded;
}

}  // namespace zg
