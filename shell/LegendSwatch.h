#pragma once

#include <QPixmap>

#include "graph/model/Series.h"

namespace zg {

/// The picture of a graph in the list: its marker in the middle, empty if it has none.
QPixmap legendSwatch(const Series& series, QSize size, double deviceScale = 1);

/// A faded copy, for the row of a hidden graph.
QPixmap ghosted(const QPixmap& swatch);

}  // namespace zg
