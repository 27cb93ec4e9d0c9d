#pragma once

#include <QCursor>
#include <QString>

#include "graph/render/Canvas.h"

namespace zg {

/// The picture of a pointer from a resource of 32 by 32 units, sharp at any scale; it points at the hot spot.
PicturePointer pointerPicture(const QString& resource, QPoint hotSpot);

QCursor cursorOf(const Picture& pointer);

enum class RulerPart { Top, Left, Corner };

/// Each of the rulers' surfaces has a pointer of its own.
QCursor rulerCursor(RulerPart part);

}  // namespace zg
