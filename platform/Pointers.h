#pragma once

#include <QCursor>
#include <QString>

#include "graph/render/Canvas.h"

namespace zg {

/// The picture of a pointer from a resource of 32 by 32 units, sharp at any scale, with its hot spot.
PicturePointer pointerPicture(const QString& resource, QPoint hotSpot);

QCursor cursorOf(const Picture& pointer);

/// The hourglass over the whole screen, or the pointers as they are. It is set and not stacked: runs may
/// overlap.
void showHourglass(bool busy);

enum class RulerPart { Top, Left, Corner };

/// Each of the rulers' surfaces has its own pointer.
QCursor rulerCursor(RulerPart part);

}  // namespace zg
