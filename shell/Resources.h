#pragma once

#include <QCursor>
#include <QIcon>

#include "graph/render/Canvas.h"

namespace zg {

/// One of the program's own icons by its file name without extension; sharp at any scale.
QIcon programIcon(const char* name);

/// The picture of a pointer by its resource number (101, 103 to 108), with its hot spot; null for other
/// numbers.
PicturePointer cursorPicture(int id);
QCursor programCursor(int id);

}  // namespace zg
