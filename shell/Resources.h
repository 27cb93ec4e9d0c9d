#pragma once

#include <QIcon>

namespace zg {

/// One of the program's own icons by its file name without ending; sharp at any scale.
QIcon programIcon(const char* name);

}  // namespace zg
