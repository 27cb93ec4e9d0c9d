#pragma once

namespace zg {

/// Scales the desktop's fonts, for all forms created afterwards.
void enlargeFonts(double factor);

/// The colours of a dark desktop theme, for all forms.
void takeDarkTheme();

/// Restores the usual fonts and colours.
void resetLooks();

}  // namespace zg
