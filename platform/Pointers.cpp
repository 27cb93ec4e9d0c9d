#include "platform/Pointers.h"

#include <QGuiApplication>

#include "platform/LineArt.h"
#include "platform/QtPicture.h"

// Outside any namespace, as the toolkit's macro requires: the resources of a library must be initialised
// explicitly.
static void loadResources() { Q_INIT_RESOURCE(platform); }

namespace zg {

namespace {

constexpr int pointerSide = 32;

}  // namespace

PicturePointer pointerPicture(const QString& resource, QPoint hotSpot) {
    const double scale = qGuiApp->devicePixelRatio();
    const int side = qRound(pointerSide * scale);
    QImage image = LineArt(resource).image(side);
    image.setDevicePixelRatio(scale);
    return std::make_shared<QtPicture>(image, hotSpot);
}

QCursor cursorOf(const Picture& pointer) {
    const auto& picture = static_cast<const QtPicture&>(pointer);
    return QCursor(QPixmap::fromImage(picture.image()), picture.hotSpot().x(), picture.hotSpot().y());
}

void showHourglass(bool busy) {
    while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
    if (busy) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

QCursor rulerCursor(RulerPart part) {
    loadResources();
    switch (part) {
        case RulerPart::Top:
            return cursorOf(
                *pointerPicture(QStringLiteral(":/platform/pointers/ruler_top.svg"), QPoint(16, 18)));
        case RulerPart::Left:
            return cursorOf(
                *pointerPicture(QStringLiteral(":/platform/pointers/ruler_left.svg"), QPoint(18, 16)));
        case RulerPart::Corner:
            break;
    }
    return cursorOf(*pointerPicture(QStringLiteral(":/platform/pointers/ruler_corner.svg"), QPoint(6, 6)));
}

}  // namespace zg
