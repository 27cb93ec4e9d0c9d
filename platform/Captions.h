#pragma once

#include <QWidget>

namespace zg {

/// A caption without its accelerator: what a screen reader says of the control that has it for a label.
QString spoken(const QString& caption);

/// Pixels that a box takes for so many digits in the control's font, its frame and margins included.
int digitsWide(const QWidget& control, int count);

/// The size of a window that has room for so many digits in a line, and for all that it holds.
QSize windowSize(const QWidget& window, int digits);

}  // namespace zg
