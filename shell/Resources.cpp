#include "shell/Resources.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <map>

#include "platform/QtPicture.h"

// Outside any namespace, as the toolkit's macro wants it: a library's resources have to be asked for.
static void loadResources() { Q_INIT_RESOURCE(shell); }

namespace zg {

namespace {

constexpr int cursorSide = 32;

/// Where each pointer points, in its 32 by 32 units.
const std::map<int, QPoint>& hotSpots() {
    static const std::map<int, QPoint> spots = {{101, {6, 26}},  {103, {16, 16}}, {104, {16, 16}},
                                                {105, {17, 18}}, {106, {18, 19}}, {107, {16, 16}},
                                                {108, {13, 13}}};
    return spots;
}

}  // namespace

QIcon programIcon(const char* name) {
    loadResources();
    return QIcon(QStringLiteral(":/shell/icons/") + QString::fromLatin1(name) + QStringLiteral(".svg"));
}

PicturePointer cursorPicture(int id) {
    const auto spot = hotSpots().find(id);
    if (spot == hotSpots().end()) return nullptr;
    loadResources();
    const double scale = qGuiApp->devicePixelRatio();
    QImage image(qRound(cursorSide * scale), qRound(cursorSide * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/shell/icons/cursor_%1.svg").arg(id)).render(&painter);
    painter.end();
    image.setDevicePixelRatio(scale);
    return std::make_shared<QtPicture>(image, spot->second);
}

QCursor programCursor(int id) {
    const PicturePointer picture = cursorPicture(id);
    if (!picture) return {};
    const auto& drawn = static_cast<const QtPicture&>(*picture);
    return QCursor(QPixmap::fromImage(drawn.image()), drawn.hotSpot().x(), drawn.hotSpot().y());
}

}  // namespace zg
