#pragma once

#include <QWidget>

namespace zg {

/// A caption without its accelerator: what a screen reader says for the control whose label it is.
QString spoken(const QString& caption);

/// Width in pixels of a box for this many digits in the control's font, with its frame and margins.
int digitsWide(const QWidget& control, int count);

/// The size of a window with room for this many digits in a line, and for all that it contains.
QSize windowSize(const QWidget& window, int digits);

}  // namespace zg
